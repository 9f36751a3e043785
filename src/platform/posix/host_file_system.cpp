#include "platform/posix/host_file_system.h"

#include <algorithm>
#include <cerrno>
#include <deque>
#include <fcntl.h>
#include <filesystem>
#include <set>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

#include "platform/posix/folder_locks.h"
#include "platform/posix/host_paths.h"
#include "platform/posix/replacement.h"
#include "platform/posix/strays.h"
#include "platform/posix/system_error.h"

namespace nimbrel {
namespace {

namespace fs = std::filesystem;

/// Fills `status` with that of the file. Throws if it is not a regular file.
Handle openToRead(std::string_view path, struct stat& status) {
  requireUsable(path);
  // O_NONBLOCK: opening a FIFO with no writer would block before fstat() can reject it.
  Handle file(::open(toHostPath(path).c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
  if (!file.isOpen()) throwSystemError(path);
  if (::fstat(file.get(), &status) != 0) throwSystemError(path);
  if (S_ISDIR(status.st_mode)) throwSystemError(path, EISDIR);
  if (!S_ISREG(status.st_mode)) throw FileError(std::string(path), "is not a regular file");
  if (status.st_nlink > 1) {  // writing it in place may have been interrupted
    removeStrays(fs::path(toHostPath(path)).parent_path());
    if (::fstat(file.get(), &status) != 0) throwSystemError(path);
  }
  return file;
}

/// Returns fewer than `count` bytes if the file has become shorter.
std::string readFrom(const Handle& file, std::string_view path, off_t offset, std::size_t count) {
  std::string bytes(count, '\0');
  std::size_t size = 0;
  while (size < bytes.size()) {
    const auto place = offset + static_cast<off_t>(size);
    const auto got = ::pread(file.get(), bytes.data() + size, bytes.size() - size, place);
    if (got < 0 && errno == EINTR) continue;
    if (got < 0) throwSystemError(path);
    if (got == 0) break;
    size += static_cast<std::size_t>(got);
  }
  bytes.resize(size);
  return bytes;
}

/// The names of the entries for which `isWanted` returns true, in byte order.
std::vector<std::string> namesIn(std::string_view folder,
                                 bool (*isWanted)(const fs::directory_entry&, std::error_code&)) {
  std::vector<std::string> names;
  std::error_code error;
  for (fs::directory_iterator entry(toHostPath(folder), error), end; !error && entry != end;
       entry.increment(error)) {
    std::error_code ignored;
    if (isWanted(*entry, ignored)) names.push_back(fromHostPath(entry->path().filename().string()));
  }
  std::ranges::sort(names);
  return names;
}

}  // namespace

bool HostFileSystem::isFile(std::string_view path) const {
  std::error_code error;
  return path.find('\0') == std::string_view::npos && fs::is_regular_file(toHostPath(path), error);
}

bool HostFileSystem::isFolder(std::string_view path) const {
  std::error_code error;
  return fs::is_directory(toHostPath(path), error);
}

std::string HostFileSystem::read(std::string_view path) const {
  struct stat status {};
  const auto file = openToRead(path, status);
  if (std::cmp_greater(status.st_size, largestFile)) throwSystemError(path, EFBIG);
  return readFrom(file, path, 0, static_cast<std::size_t>(status.st_size));
}

std::string HostFileSystem::readPart(std::string_view path, std::uint64_t offset, std::size_t count) const {
  struct stat status {};
  const auto file = openToRead(path, status);
  const auto size = static_cast<std::uint64_t>(status.st_size);
  if (offset >= size) return {};
  return readFrom(file, path, static_cast<off_t>(offset), std::min<std::uint64_t>(count, size - offset));
}

std::optional<FileStatus> HostFileSystem::status(std::string_view path) const {
  struct stat status {};
  if (path.find('\0') != std::string_view::npos || ::stat(toHostPath(path).c_str(), &status) != 0) return {};
  if (!S_ISREG(status.st_mode)) return {};
  constexpr std::int64_t second = 1'000'000'000;
  return FileStatus{.device = status.st_dev,
                    .inode = status.st_ino,
                    .size = static_cast<std::uint64_t>(status.st_size),
                    .modified = status.st_mtim.tv_sec * second + status.st_mtim.tv_nsec,
                    .isPrivate = (status.st_mode & S_IROTH) == 0};
}

bool HostFileSystem::isInside(std::string_view path, std::string_view folder) const {
  std::error_code error;
  const auto inner = fs::weakly_canonical(fs::absolute(toHostPath(path)), error);
  if (error) return false;
  const auto outer = fs::weakly_canonical(fs::absolute(toHostPath(folder)), error);
  if (error) return false;
  return std::ranges::mismatch(inner, outer).in2 == outer.end();
}

std::unique_ptr<FolderLock> HostFileSystem::lock(std::span<const std::string> folders) {
  std::vector<fs::path> paths;
  for (const auto& folder : folders) paths.emplace_back(folder.empty() ? "." : toHostPath(folder));
  return std::make_unique<FolderLocks>(paths);
}

std::unique_ptr<FolderLock> HostFileSystem::tryLock(std::string_view folder) {
  requireUsable(folder);
  const fs::path path = toHostPath(folder);
  auto lock = std::make_unique<FolderLocks>(std::vector{path}, std::chrono::seconds::zero());
  // Another program may have removed the folder before the lock.
  return lock->holds(path) ? std::move(lock) : nullptr;
}

void HostFileSystem::replace(std::string_view path, std::string_view bytes) {
  Replacement file(path, bytes);
  file.flush();
  file.commit();
  flushFolders({file.folder()});
}

Findings HostFileSystem::replaceAll(std::span<const NewFile> newFiles) {
  Findings findings;
  const auto attempt = [&findings](auto step) {
    try {
      step();
    } catch (const FileError& error) {
      findings.push_back(error.finding());
    }
  };
  std::deque<Replacement> files;
  for (const auto& file : newFiles) attempt([&] { files.emplace_back(file.path, file.bytes); });
  std::set<dev_t> flushedDevices;
  std::set<fs::path> folders;
  for (auto& file : files) {
    attempt([&] {
      file.flushDevice(flushedDevices);
      file.commit();
      folders.insert(file.folder());
    });
  }
  flushFolders(folders);
  return findings;
}

void HostFileSystem::generate(std::string_view path, std::string_view bytes) {
  Replacement(path, bytes).commit();
}

void HostFileSystem::copy(std::string_view from, std::string_view to) {
  std::error_code error;
  if (fs::equivalent(toHostPath(from), toHostPath(to), error)) return;
  generate(to, read(from));
}

void HostFileSystem::remove(std::string_view path) {
  if (::unlink(toHostPath(path).c_str()) != 0) throwSystemError(path);
}

void HostFileSystem::makeFolder(std::string_view path) {
  constexpr mode_t everyone = 0777;  // the umask applies
  if (::mkdir(toHostPath(path).c_str(), everyone) != 0 && !(errno == EEXIST && isFolder(path)))
    throwSystemError(path);
}

void HostFileSystem::removeFolder(std::string_view path) {
  if (::rmdir(toHostPath(path).c_str()) != 0) throwSystemError(path);
}

std::vector<std::string> HostFileSystem::filesIn(std::string_view folder) const {
  return namesIn(folder, [](const fs::directory_entry& entry, std::error_code& error) {
    return entry.is_regular_file(error);
  });
}

std::vector<std::string> HostFileSystem::foldersIn(std::string_view folder) const {
  return namesIn(folder, [](const fs::directory_entry& entry, std::error_code& error) {
    return entry.is_directory(error);
  });
}

}  // namespace nimbrel
