#include "platform/posix/host_file_system.h"

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <filesystem>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>
#include <utility>

#include "platform/posix/host_paths.h"

namespace nimbrel {
namespace {

namespace fs = std::filesystem;

[[noreturn]] void fail(std::string_view path, int error) {
  throw FileError(std::string(path), std::generic_category().message(error));
}

/// An open file, closed with its scope.
class Handle {
 public:
  explicit Handle(int descriptor) : descriptor_(descriptor) {}
  Handle(const Handle&) = delete;
  Handle& operator=(const Handle&) = delete;
  ~Handle() {
    if (descriptor_ >= 0) ::close(descriptor_);
  }
  int get() const { return descriptor_; }
  bool isOpen() const { return descriptor_ >= 0; }
  /// Closes now, since the last of what was written may fail only then.
  bool close() { return ::close(std::exchange(descriptor_, -1)) == 0; }

 private:
  int descriptor_;
};

/// A file that is gone with its scope unless it was renamed.
class TemporaryFile {
 public:
  explicit TemporaryFile(const fs::path& folder)
      : path_((folder / ".nimbrel-XXXXXX").string()), handle_(::mkostemp(path_.data(), O_CLOEXEC)) {}
  TemporaryFile(const TemporaryFile&) = delete;
  TemporaryFile& operator=(const TemporaryFile&) = delete;
  ~TemporaryFile() {
    if (!path_.empty()) ::unlink(path_.c_str());
  }
  Handle& handle() { return handle_; }
  bool renameTo(const std::string& target) {
    if (::rename(path_.c_str(), target.c_str()) != 0) return false;
    path_.clear();
    return true;
  }

 private:
  std::string path_;
  Handle handle_;
};

bool writeAll(int descriptor, std::string_view bytes) {
  while (!bytes.empty()) {
    const auto written = ::write(descriptor, bytes.data(), bytes.size());
    if (written < 0 && errno == EINTR) continue;
    if (written < 0) return false;
    bytes.remove_prefix(static_cast<std::size_t>(written));
  }
  return true;
}

mode_t modeOfNewFiles() {
  const mode_t mask = ::umask(0);
  ::umask(mask);
  return 0666 & ~mask;
}

/// Gives the new file the mode and owner of the one whose place it takes; refuses one that is no file or is
/// not to be written.
void takePlaceOf(std::string_view path, const std::string& target, int descriptor) {
  struct stat old {};
  if (::stat(target.c_str(), &old) != 0) {
    if (errno != ENOENT || ::fchmod(descriptor, modeOfNewFiles()) != 0) fail(path, errno);
    return;
  }
  if (S_ISDIR(old.st_mode)) fail(path, EISDIR);
  if (!S_ISREG(old.st_mode)) throw FileError(std::string(path), "is not a regular file");
  // The mark is the author's word, and it counts for the system's administrator too.
  const bool markedReadOnly = (old.st_mode & (S_IWUSR | S_IWGRP | S_IWOTH)) == 0;
  if (markedReadOnly || ::access(target.c_str(), W_OK) != 0)
    throw FileError(std::string(path), "is read-only");
  // Only an administrator can keep a foreign owner; for others the file becomes theirs.
  if (::fchown(descriptor, old.st_uid, old.st_gid) != 0) errno = 0;
  if (::fchmod(descriptor, old.st_mode & 07777) != 0) fail(path, errno);
}

/// The file that a chain of links ends at, also where none stands there yet.
fs::path endOfLinks(fs::path path) {
  constexpr int longestChain = 40;
  for (int i = 0; i < longestChain; ++i) {
    std::error_code error;
    const auto next = fs::read_symlink(path, error);
    if (error) break;
    path = path.parent_path() / next;
  }
  return path;
}

}  // namespace

bool HostFileSystem::isFile(std::string_view path) const {
  std::error_code error;
  return fs::is_regular_file(toHostPath(path), error);
}

bool HostFileSystem::isFolder(std::string_view path) const {
  std::error_code error;
  return fs::is_directory(toHostPath(path), error);
}

std::string HostFileSystem::read(std::string_view path) const {
  // Not to block: a pipe without a writer must not hang the program ahead of the look at what it is.
  const Handle file(::open(toHostPath(path).c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
  if (!file.isOpen()) fail(path, errno);
  struct stat status {};
  if (::fstat(file.get(), &status) != 0) fail(path, errno);
  if (S_ISDIR(status.st_mode)) fail(path, EISDIR);
  if (!S_ISREG(status.st_mode)) throw FileError(std::string(path), "is not a regular file");
  if (std::cmp_greater(status.st_size, largestFile)) fail(path, EFBIG);

  std::string bytes(static_cast<std::size_t>(status.st_size), '\0');
  std::size_t size = 0;
  while (size < bytes.size()) {
    const auto got = ::read(file.get(), bytes.data() + size, bytes.size() - size);
    if (got < 0 && errno == EINTR) continue;
    if (got < 0) fail(path, errno);
    if (got == 0) break;
    size += static_cast<std::size_t>(got);
  }
  bytes.resize(size);
  return bytes;
}

void HostFileSystem::replace(std::string_view path, std::string_view bytes) {
  const fs::path target = endOfLinks(toHostPath(path));
  const fs::path folder = target.has_parent_path() ? target.parent_path() : fs::path(".");
  TemporaryFile temporary(folder);
  Handle& file = temporary.handle();
  if (!file.isOpen()) fail(path, errno);
  takePlaceOf(path, target.string(), file.get());
  if (!writeAll(file.get(), bytes) || ::fdatasync(file.get()) != 0 || !file.close() ||
      !temporary.renameTo(target.string())) {
    fail(path, errno);
  }
}

void HostFileSystem::copy(std::string_view from, std::string_view to) {
  std::error_code error;
  if (fs::equivalent(toHostPath(from), toHostPath(to), error)) return;
  replace(to, read(from));
}

void HostFileSystem::remove(std::string_view path) {
  if (::unlink(toHostPath(path).c_str()) != 0) fail(path, errno);
}

void HostFileSystem::makeFolder(std::string_view path) {
  constexpr mode_t lessTheMask = 0777;
  if (::mkdir(toHostPath(path).c_str(), lessTheMask) != 0 && !(errno == EEXIST && isFolder(path)))
    fail(path, errno);
}

std::vector<std::string> HostFileSystem::filesIn(std::string_view folder) const {
  std::vector<std::string> names;
  std::error_code error;
  for (fs::directory_iterator entry(toHostPath(folder), error), end; !error && entry != end;
       entry.increment(error)) {
    std::error_code ignored;
    if (entry->is_regular_file(ignored)) names.push_back(fromHostPath(entry->path().filename().string()));
  }
  std::ranges::sort(names);
  return names;
}

}  // namespace nimbrel
