#include "platform/memory/overlay_file_system.h"

#include "text/paths.h"

namespace nimbrel {

const FileSystem& OverlayFileSystem::holder(std::string_view path) const {
  return written_.isFile(path) ? static_cast<const FileSystem&>(written_) : base_;
}

bool OverlayFileSystem::isFolder(std::string_view path) const {
  return written_.isFolder(path) || base_.isFolder(path);
}

std::string OverlayFileSystem::readPart(std::string_view path, std::uint64_t offset,
                                        std::size_t count) const {
  return holder(path).readPart(path, offset, count);
}

std::optional<FileStatus> OverlayFileSystem::status(std::string_view path) const {
  return holder(path).status(path);
}

bool OverlayFileSystem::isInside(std::string_view path, std::string_view folder) const {
  return holder(path).isInside(path, folder);
}

/// A folder of the other file system is one here as well.
void OverlayFileSystem::adoptFolder(std::string_view path) {
  if (base_.isFolder(path)) written_.folders.emplace(path);
}

void OverlayFileSystem::replace(std::string_view path, std::string_view bytes) {
  adoptFolder(folderName(path));
  written_.replace(path, bytes);
}

void OverlayFileSystem::makeFolder(std::string_view path) {
  adoptFolder(folderName(path));
  written_.makeFolder(path);
}

}  // namespace nimbrel
