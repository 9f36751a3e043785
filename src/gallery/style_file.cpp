#include "gallery/style_file.h"

#include <array>
#include <utility>

#include "compiler/picture_file.h"
#include "persistence/property_line.h"
#include "persistence/record_reader.h"
#include "text/ascii.h"
#include "text/numbers.h"
#include "text/paths.h"

namespace nimbrel {
namespace {

constexpr std::string_view suffix = ".nbs";
constexpr Message badName{"Create Style",
                          "The Style Name cannot contain any of the following characters:\r\n"
                          "\\ / : * ? \" < > |"};

std::string imagesFolder(const std::string& name) { return name + "-images"; }

/// The pictures of a style in the order of the file.
std::vector<SharedText*> lookImages(MenuStyle& style) {
  auto& item = style.item;
  return {&style.submenu.BGImage, &item.BGImage1,         &item.BGImage2,        &item.BGImage3,
          &item.HasSubmenuImage1, &item.HasSubmenuImage2, &item.HasSubmenuImage3};
}

bool marksSubmenus(const ItemObj& item) {
  return item.HasSubmenuImage1 != notSet || item.HasSubmenuImage2 != notSet ||
         item.HasSubmenuImage3 != notSet;
}

/// A style file from a stranger could name any file of the author: only pictures of the gallery are taken.
template <class E>
void prefixImages(FileHandle& file, E& element, const std::string& folder) {
  for (const auto* row : imageRows<E>) {
    auto& path = element.*std::get<SharedText E::*>(row->field);
    if (path == notSet || path.empty()) continue;
    if (staysInside(path) && isPictureName(path)) {
      path = folder + '\\' + path.str();
    } else {
      file.note(std::string(row->name) + ": " + quoted(path) + " is not a picture of the gallery");
      path = notSet;
    }
  }
}

/// Skips the list of pictures, which the properties have too. The count ends at a blank, and the first
/// picture follows in the same value.
void passImageList(FileHandle& file) {
  const auto first = file.next();
  const auto count = parseInteger(first.substr(0, first.find(' ')));
  if (!count) file.fail("the number of pictures is not a number");
  for (std::int32_t i = 1; i < *count; ++i) file.next();
  if (*count > 0) file.passLineEnd();
}

/// Reads one record. `target` gets the element with full image paths, also if the reading stops.
template <class E>
void readRecord(FileHandle& file, RecordReader& reader, const std::string& folder, E& target) {
  file.beginRecord();
  Element element = E{};
  const auto take = [&] {
    target = std::get<E>(std::move(element));
    prefixImages(file, target, folder);
  };
  try {
    reader.ReadPropertiesFromFile(element);
  } catch (const FileError&) {
    take();
    throw;
  }
  take();
}

std::string styleFileText(const MenuStyle& style, const std::vector<std::string>& images) {
  std::string text(currentFormat.styleMagic);
  text += lineEnd;
  text += printedForm(static_cast<std::int32_t>(images.size()));
  for (const auto& image : images) text += image + ',';
  text += lineEnd;
  text += ParameterString(style.submenu);
  text += lineEnd;
  text += ParameterString(style.item);
  text += lineEnd;
  return text;
}

}  // namespace

std::string galleryFolder(const std::string& programFolder) { return programFolder + "\\gallery"; }

std::vector<std::string> styleNames(const FileSystem& files, const std::string& programFolder) {
  std::vector<std::string> names;
  for (const auto& file : files.filesIn(galleryFolder(programFolder))) {
    if (file.ends_with(suffix)) names.push_back(file.substr(0, file.size() - suffix.size()));
  }
  return names;
}

std::string styleFilePath(const std::string& programFolder, std::string_view name) {
  auto path = galleryFolder(programFolder) + '\\';
  return path.append(name).append(suffix);
}

bool ReadStyleFile(const FileSystem& files, const std::string& programFolder, std::string_view name,
                   SubmenuCarryOver& carryOver, MenuStyle& style, ReadNotes& notes) {
  style = {};
  const auto path = styleFilePath(programFolder, name);
  if (refusalOfStyleName(name) != nullptr) throw FileError(path, "is not in the gallery");
  const auto bytes = files.read(path);
  FileHandle file(path, bytes, notes);
  const auto* format = file.atEnd() ? nullptr : formatOfStyleFile(file.next());
  if (format == nullptr) return false;

  passImageList(file);
  const auto folder = galleryFolder(programFolder);
  RecordReader reader(file, *format, "", carryOver);
  readRecord(file, reader, folder, style.submenu);
  readRecord(file, reader, folder, style.item);
  return true;
}

MenuStyle styleOfMenu(const MenuObj* menu, const ItemObj* firstItem) {
  MenuStyle style;
  SetDefaultValues(style.submenu);
  SetDefaultValues(style.item);
  if (menu != nullptr) CopyStyleValuesFromMenuObject(style.submenu, *menu);
  if (firstItem != nullptr) CopyStyleValuesFromObject(style.item, *firstItem);
  return style;
}

void SaveStyle(FileSystem& files, const std::string& programFolder, const std::string& name, MenuStyle style,
               StepReport& report) {
  const auto gallery = galleryFolder(programFolder);
  FileSteps steps(files, report, gallery);
  const auto folder = imagesFolder(name);
  const auto wholeFolder = gallery + '\\' + folder;
  std::vector<std::string> images;
  steps.makeFolder(gallery);
  steps.makeFolder(wholeFolder);
  for (auto* image : lookImages(style)) {
    if (*image == notSet || image->empty()) continue;
    const auto source = image->str();
    if (const auto refusal = refusalOfPicture(files, source, "this style"); refusal && files.isFile(source)) {
      steps.note(*refusal);
      *image = notSet;
      continue;
    }
    images.push_back(folder + '\\' + std::string(fileName(source)));
    *image = images.back();
    steps.copy(source, gallery + '\\' + images.back());
  }
  if (marksSubmenus(style.item)) {
    images.push_back(folder + "\\dot.gif");
    steps.copy(programFolder + "\\dot.gif", gallery + '\\' + images.back());
  }
  // Quirk: the pictures of a replaced style and their folder are not removed.
  if (images.empty() && files.filesIn(wholeFolder).empty()) steps.removeFolder(wholeFolder);
  steps.generate(styleFilePath(programFolder, name), styleFileText(style, images));
}

void removeStyle(FileSystem& files, const std::string& programFolder, const std::string& name,
                 StepReport& report) {
  FileSteps steps(files, report);
  const auto folder = galleryFolder(programFolder) + '\\' + imagesFolder(name);
  steps.remove(styleFilePath(programFolder, name));
  if (!files.isFolder(folder)) return;
  steps.removeFilesIn(folder);
  steps.removeFolder(folder);
}

const Message* refusalOfStyleName(std::string_view name) {
  return name.find_first_of("\\/:*?\"<>|") == std::string_view::npos ? nullptr : &badName;
}

}  // namespace nimbrel
