#include "compiler/image_collection.h"

#include "compiler/picture_file.h"
#include "text/paths.h"

namespace nimbrel {

bool ImageFolder::has(const std::string& picture, const Node& user) {
  const auto [entry, isNew] = known_.try_emplace(picture, false);
  // An empty path means no picture, so nothing is missing.
  if (!isNew || picture.empty()) return entry->second;
  if (auto refusal = refusalOfPicture(steps_.files(), picture, user.Key)) {
    steps_.note(*std::move(refusal));
    return false;
  }
  if (auto warning = warningOfPicture(steps_.files(), picture, user.Key)) steps_.note(*std::move(warning));
  return entry->second = true;
}

CImageInfo ImageFolder::take(const std::string& picture) {
  const auto [measured, isNew] = measured_.try_emplace(picture);
  if (isNew) {
    try {
      measured->second = ReadImageInfo(steps_.files(), picture);
    } catch (const FileError&) {
      // The copy below fails in the same way and reports it; the size stays 0 by 0.
    }
  }
  std::string& source = sources_[std::string(fileName(picture))];
  if (source != picture) {
    steps_.copy(picture, GalleryImagePath(picture, path_));
    source = picture;
  }
  return measured->second;
}

float ImageCollection::numberOf(std::string_view path, const Node& user) {
  if (path == notSet) return 0;
  const auto [number, isNew] = numbers_.try_emplace(std::string(path), 0.F);
  if (!isNew || !folder_.has(number->first, user)) return number->second;

  // Quirk: pictures are identified by file name alone; of two with the same name, only the first is shown.
  const auto [position, isNewName] =
      positions_.try_emplace(std::string(fileName(path)), ImageNames.size() + 1);
  if (isNewName) {
    const auto info = folder_.take(number->first);
    ImageNames.push_back(position->first);
    ImageWidths.push_back(info.Width);
    ImageHeights.push_back(info.Height);
  }
  return number->second = static_cast<float>(position->second);
}

void ImageCollection::CollectImages(Document& document, const Node& top, bool includeSubmenus) {
  // Quirk: a node counts as the main menu by its text, not by its key.
  const SharedText textOfRoot = document.tvTreeView.root()->Text;
  for (const Node* node = &top; node != nullptr;) {
    if (Element* element = document.element(*node)) {
      eachImage(*element, [&](const SharedText& path, float& number) {
        // Quirk: a picture with the name of the end marker ends the element's images.
        const bool isLast = path == noMoreImages;
        number = isLast ? 0 : numberOf(path, *node);
        return !isLast;
      });
    }
    const bool goesDown = includeSubmenus || node->Text == textOfRoot;
    node = goesDown ? following(node, &top) : followingPastChildren(node, &top);
  }
}

std::string ImageCollection::tableLine() const {
  if (ImageNames.empty()) return {};
  std::string line = "nbrImagesColl=[";
  for (std::size_t i = 0; i < ImageNames.size(); ++i) {
    if (i > 0) line += ',';
    line.append(1, '\'').append(ImageNames[i]).append("',").append(std::to_string(ImageWidths[i]));
    line.append(1, ',').append(std::to_string(ImageHeights[i]));
  }
  return line + "];";
}

}  // namespace nimbrel
