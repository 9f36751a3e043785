#include "compiler/inspection.h"

#include <algorithm>
#include <map>
#include <optional>
#include <utility>

#include "compiler/compile.h"
#include "compiler/image_info.h"
#include "compiler/picture_file.h"
#include "compiler/script_literals.h"
#include "text/paths.h"

namespace nimbrel {
namespace {

class Inspector {
 public:
  Inspector(const Document& document, const FileSystem& files, const std::string& path)
      : document_(document), files_(files), path_(path) {}

  Findings run() {
    if (document_.tvTreeView.empty()) say("there is no main menu");
    for (const Node* node = document_.tvTreeView.root(); node != nullptr; node = following(node)) {
      inspectPlace(*node);
      if (const Element* element = document_.element(*node)) inspectValues(*node, *element);
    }
    if (const auto* refusal = refusalOfFolders(document_.settings)) say(std::string(refusal->text));
    for (auto& flaw : flawedLiterals(document_, path_)) findings_.push_back(std::move(flaw));
    if (firstLetters_) {
      warn(path_, "has letters outside ASCII, first in " + *firstLetters_ +
                      ": pages that are not in Windows-1252 show them wrongly");
    }
    return std::move(findings_);
  }

 private:
  std::string folderOfMenu() const { return std::string(folderName(path_)); }
  void warn(std::string path, std::string reason) {
    findings_.push_back({std::move(path), std::move(reason), {}, Severity::Warning});
  }
  void say(std::string reason) { findings_.push_back({path_, std::move(reason)}); }

  void inspectPlace(const Node& node) {
    const auto kind = kindOf(node.Key);
    const auto* parent = node.Parent();
    const auto above = parent == nullptr ? Kind::None : kindOf(parent->Key);
    if (kind == Kind::None) say(node.Key + " is neither a menu, a submenu nor an item");
    if (parent == nullptr && node.Previous() != nullptr)
      say(node.Key + " is a second root, which is not saved");
    if (parent == nullptr && kind != Kind::Menu) say(node.Key + " is the root and not a main menu");
    if (parent != nullptr && kind == Kind::Menu) say(node.Key + " is a main menu below the root");
    if (kind == Kind::Item && parent != nullptr && above == Kind::Item) {
      say(node.Key + " is an item that hangs from the item " + parent->Key);
    }
    if (kind == Kind::Submenu && parent != nullptr && above != Kind::Item) {
      say(node.Key + " is a submenu that does not hang from an item");
    }
    if (kind == Kind::Submenu && above == Kind::Item && node.Previous() != nullptr) {
      say(node.Key + " is a second submenu of the item " + parent->Key);
    }
  }

  void inspectValues(const Node& node, const Element& element) {
    std::visit(
        [&]<class E>(const E& object) {
          eachProperty<E>([&](const Property<E>& property, auto field) {
            if constexpr (std::is_same_v<decltype(field), SharedText E::*>) {
              inspectText(node.Key, property.name, property.form, object.*field);
              if (property.isImage) inspectPicture(node.Key, (object.*field).str());
            }
          });
        },
        element);
  }

  void inspectText(const std::string& key, std::string_view name, FileForm form, std::string_view value) {
    const auto of = std::string(name) + " of " + key + " holds ";
    if (value.find_first_of("\r\n") != std::string_view::npos)
      say(of + "a line break, which ends the value in the file");
    if (form == FileForm::Raw && value.find(',') != std::string_view::npos) {
      say(of + "a comma, which shifts the values after it in the file");
    }
    if (!firstLetters_ && std::ranges::any_of(value, [](char c) { return (c & 0x80) != 0; })) {
      firstLetters_ = std::string(name) + " of " + key;
    }
  }

  void inspectPicture(const std::string& key, const std::string& picture) {
    if (picture == notSet || picture.empty()) return;
    const auto [user, isNew] = users_.try_emplace(picture, key);
    if (!isNew) return;
    if (auto refusal = refusalOfPicture(files_, picture, key)) {
      findings_.push_back(*std::move(refusal));
      return;
    }
    if (auto warning = warningOfPicture(files_, picture, key)) findings_.push_back(*std::move(warning));
    if (!files_.isInside(picture, folderOfMenu())) {
      warn(picture,
           "lies outside the folder of the menu file; a compile takes it from there (used by " + key + ")");
    }
    try {
      if (ReadImageInfo(files_, picture).ImageType == ImageFormat::Unknown) {
        findings_.push_back({picture, "is of no known picture format (used by " + key + ")"});
      }
    } catch (const FileError& error) {
      findings_.push_back(error.finding());
    }
    const auto name = std::string(fileName(picture));
    if (name.find('\'') != std::string_view::npos) {
      findings_.push_back({picture, "has a single quote in its name, which breaks the script"});
    } else if (const auto* flaw = flawOfLiteral(name, '\'')) {
      findings_.push_back({picture, std::string(flaw) + " in its name, which breaks the script"});
    }
    const auto [first, isNewName] = firstOfName_.try_emplace(name, picture);
    if (!isNewName) {
      findings_.push_back(
          {picture, "has the name of another picture, which is shown in its place (used by " + key + ")"});
    }
  }

  const Document& document_;
  const FileSystem& files_;
  const std::string& path_;
  Findings findings_;
  std::optional<std::string> firstLetters_;         // the first value with letters outside ASCII
  std::map<std::string, std::string> users_;        // picture path: key of the first element that uses it
  std::map<std::string, std::string> firstOfName_;  // file name: path of the picture that is shown for it
};

}  // namespace

Findings inspect(const Document& document, const FileSystem& files, const std::string& path) {
  return Inspector(document, files, path).run();
}

}  // namespace nimbrel
