#include "platform/memory/memory_file_system.h"

#include "text/paths.h"

namespace nimbrel {

void MemoryFileSystem::failIfAsked(std::string_view path) const {
  if (failsNow && failsNow()) throw FileError(std::string(path), "the disk failed");
}

bool MemoryFileSystem::isFile(std::string_view path) const { return files.contains(path); }

bool MemoryFileSystem::isFolder(std::string_view path) const {
  if (folders.contains(path)) return true;
  const auto inside = std::string(path) + '\\';
  const auto first = files.lower_bound(inside);
  return first != files.end() && first->first.starts_with(inside);
}

std::string MemoryFileSystem::read(std::string_view path) const {
  const auto found = files.find(path);
  if (found == files.end()) throw FileError(std::string(path), "no such file");
  return found->second;
}

void MemoryFileSystem::replace(std::string_view path, std::string_view bytes) {
  failIfAsked(path);
  const auto folder = folderName(path);
  if (!folder.empty() && !isFolder(folder)) throw FileError(std::string(path), "no such folder");
  files.insert_or_assign(std::string(path), std::string(bytes));
}

void MemoryFileSystem::copy(std::string_view from, std::string_view to) { replace(to, read(from)); }

void MemoryFileSystem::remove(std::string_view path) {
  failIfAsked(path);
  const auto found = files.find(path);
  if (found == files.end()) throw FileError(std::string(path), "no such file");
  files.erase(found);
}

void MemoryFileSystem::makeFolder(std::string_view path) {
  failIfAsked(path);
  const auto parent = folderName(path);
  if (!parent.empty() && !isFolder(parent)) throw FileError(std::string(path), "no such folder");
  folders.emplace(path);
}

void MemoryFileSystem::removeFolder(std::string_view path) {
  failIfAsked(path);
  if (!filesIn(path).empty()) throw FileError(std::string(path), "the folder is not empty");
  const auto folder = folders.find(path);
  if (folder == folders.end()) throw FileError(std::string(path), "no such folder");
  folders.erase(folder);
}

std::vector<std::string> MemoryFileSystem::filesIn(std::string_view folder) const {
  std::vector<std::string> names;
  for (const auto& entry : files) {
    if (folderName(entry.first) == folder) names.emplace_back(fileName(entry.first));
  }
  return names;
}

}  // namespace nimbrel
