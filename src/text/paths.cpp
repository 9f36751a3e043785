#include "text/paths.h"

namespace nimbrel {

std::string_view fileName(std::string_view path) { return path.substr(path.rfind('\\') + 1); }

std::string_view folderName(std::string_view path) {
  const auto last = path.rfind('\\');
  return last == std::string_view::npos ? std::string_view{} : path.substr(0, last);
}

std::string joinPath(std::string_view folder, std::string_view name) {
  std::string path(folder);
  if (!folder.empty()) path += '\\';
  return path.append(name);
}

std::string GalleryImagePath(std::string_view path, std::string_view folder) {
  return std::string(folder).append(1, '\\').append(fileName(path));
}

}  // namespace nimbrel
