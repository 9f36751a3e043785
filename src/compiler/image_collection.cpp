#include "compiler/image_collection.h"

#include "compiler/image_info.h"
#include "compiler/picture_file.h"
#include "text/paths.h"

namespace nimbrel {

bool PictureFolder::has(const std::string& picture, const Node& user) {
  const auto [entry, isNew] = known_.try_emplace(picture, false);
  // An empty path means no picture, so nothing is missing.
  if (!isNew || picture.empty()) return entry->second;
  if (auto refusal = refusalOfPicture(files_, picture, user.Key)) {
    script_.findings.push_back(*std::move(refusal));
    return false;
  }
  if (auto warning = warningOfPicture(files_, picture, user.Key)) {
    script_.findings.push_back(*std::move(warning));
  }
  return entry->second = true;
}

CompiledPicture PictureFolder::take(const std::string& picture) {
  const auto [measured, isNew] = measured_.try_emplace(picture);
  auto& [name, width, height] = measured->second;
  if (isNew) {
    name = fileName(picture);
    try {
      const auto info = ReadImageInfo(files_, picture);
      width = info.Width;
      height = info.Height;
    } catch (const FileError&) {
      // The copy fails in the same way and reports it; the size stays 0 by 0.
    }
  }
  std::string& source = sources_[name];
  if (source != picture) {
    script_.pictures.push_back(picture);
    source = picture;
  }
  return measured->second;
}

namespace {

/// The numbers of one group.
class PictureNumbers {
 public:
  PictureNumbers(PictureFolder& folder, std::vector<CompiledPicture>& pictures)
      : folder_(folder), pictures_(pictures) {}

  std::int32_t numberOf(std::string_view path, const Node& user) {
    if (path == notSet) return ElementNumbers::none;
    const auto [number, isNew] = numbers_.try_emplace(std::string(path), ElementNumbers::none);
    if (!isNew || !folder_.has(number->first, user)) return number->second;

    // Quirk: pictures are identified by file name alone; of two with the same name, only the first is shown.
    const auto next = static_cast<std::int32_t>(pictures_.size());
    const auto [position, isNewName] = positions_.try_emplace(std::string(fileName(path)), next);
    if (isNewName) pictures_.push_back(folder_.take(number->first));
    return number->second = position->second;
  }

 private:
  PictureFolder& folder_;
  std::vector<CompiledPicture>& pictures_;
  std::unordered_map<std::string, std::int32_t> positions_;  // by file name
  std::unordered_map<std::string, std::int32_t> numbers_;    // by path
};

}  // namespace

void CollectImages(const Document& document, PictureFolder& folder, CompiledGroup& group) {
  PictureNumbers numbers(folder, group.pictures);
  // Quirk: a node counts as the main menu by its text, not by its key.
  const std::string_view textOfRoot = document.tvTreeView.root()->Text;
  for (std::size_t i = 0; i < group.elements.size();) {
    auto& one = group.elements[i];
    if (one.element != nullptr) {
      eachImage(*one.element, [&](const SharedText& path, std::size_t slot) {
        if (path == noMoreImages) return false;  // Quirk: a picture with the name of the end marker
        one.numbers.pictures.at(slot) = numbers.numberOf(path, *one.node);
        return true;
      });
    }
    const bool goesDown = group.includesSubmenus || one.node->Text == textOfRoot;
    i += goesDown ? 1 : one.below + 1;
  }
}

}  // namespace nimbrel
