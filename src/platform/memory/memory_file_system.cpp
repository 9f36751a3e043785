#include "platform/memory/memory_file_system.h"

#include "text/paths.h"

namespace nimbrel {
namespace {

/// Removes "." and "..".
std::string pathWithoutDots(std::string_view path) {
  std::vector<std::string_view> parts;
  while (true) {
    const auto end = path.find('\\');
    const auto part = path.substr(0, end);
    if (part == ".." && !parts.empty()) {
      parts.pop_back();
    } else if (part != ".") {
      parts.push_back(part);
    }
    if (end == std::string_view::npos) break;
    path.remove_prefix(end + 1);
  }
  std::string result;
  for (const auto part : parts) result.append(result.empty() ? "" : "\\").append(part);
  return result;
}

}  // namespace

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

std::string MemoryFileSystem::readPart(std::string_view path, std::uint64_t offset, std::size_t count) const {
  const auto found = files.find(path);
  if (found == files.end()) throw FileError(std::string(path), "no such file");
  return offset < found->second.size() ? found->second.substr(offset, count) : std::string();
}

/// There are no times here, so the bytes stand for them.
std::optional<FileStatus> MemoryFileSystem::status(std::string_view path) const {
  const auto found = files.find(path);
  if (found == files.end()) return std::nullopt;
  const auto hash = std::hash<std::string>()(found->second);
  return FileStatus{.size = found->second.size(), .modified = static_cast<std::int64_t>(hash)};
}

bool MemoryFileSystem::isInside(std::string_view path, std::string_view folder) const {
  const auto inside = pathWithoutDots(folder);
  const auto full = pathWithoutDots(path);
  return full == inside || full.starts_with(inside + '\\');
}

std::unique_ptr<FolderLock> MemoryFileSystem::lock(std::span<const std::string>) {
  return std::make_unique<FolderLock>();
}

/// One program alone uses a file system in memory, and it locks a folder once.
std::unique_ptr<FolderLock> MemoryFileSystem::tryLock(std::string_view folder) {
  return isFolder(folder) ? std::make_unique<FolderLock>() : nullptr;
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

std::vector<std::string> MemoryFileSystem::foldersIn(std::string_view folder) const {
  std::vector<std::string> names;
  for (const auto& path : folders) {
    if (folderName(path) == folder) names.emplace_back(fileName(path));
  }
  return names;
}

}  // namespace nimbrel
