#include "platform/posix/replacement.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

#include "platform/file_error.h"
#include "platform/posix/host_paths.h"
#include "platform/posix/system_error.h"

namespace nimbrel {
namespace {

namespace fs = std::filesystem;

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

/// Follows a chain of links. The last target need not exist.
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

fs::path folderOf(const fs::path& path) {
  return path.has_parent_path() ? path.parent_path() : fs::path(".");
}

}  // namespace

Handle::Handle(Handle&& other) noexcept : descriptor_(std::exchange(other.descriptor_, -1)) {}

Handle& Handle::operator=(Handle&& other) noexcept {
  std::swap(descriptor_, other.descriptor_);
  return *this;
}

Handle::~Handle() { close(); }

bool Handle::close() { return !isOpen() || ::close(std::exchange(descriptor_, -1)) == 0; }

Replacement::Replacement(std::string_view documentPath)
    : documentPath_(documentPath), target_(endOfLinks(toHostPath(documentPath))) {
  requireUsable(documentPath);
}

// The delegated constructor has completed, so if a step throws, the destructor removes the temporary file.
Replacement::Replacement(std::string_view documentPath, std::string_view bytes) : Replacement(documentPath) {
  open(folderOf(target_));
  adoptAttributes();
  if (!writeAll(file_.get(), bytes)) throwSystemError(documentPath_);
}

Replacement::~Replacement() {
  if (file_.isOpen() && !name_.empty()) ::unlink(name_.c_str());
}

/// Prefers a file without a name, of which nothing remains even if the process is killed.
void Replacement::open(const fs::path& folder) {
  const bool canBeNamed = ::access("/proc/self/fd", X_OK) == 0;
  errno = EOPNOTSUPP;
  if (canBeNamed) {
    file_ = Handle(::open(folder.c_str(), O_TMPFILE | O_WRONLY | O_CLOEXEC, S_IRUSR | S_IWUSR));
  }
  if (file_.isOpen()) return;
  if (errno != EOPNOTSUPP && errno != EISDIR && errno != EINVAL) throwSystemError(documentPath_);
  name_ = (folder / ".nimbrel-XXXXXX").string();
  file_ = Handle(::mkostemp(name_.data(), O_CLOEXEC));
  if (!file_.isOpen()) throwSystemError(documentPath_);
}

/// Gives the temporary file the mode and owner of the old one. Throws if that is not a writable regular file.
void Replacement::adoptAttributes() {
  struct stat old {};
  if (::stat(target_.c_str(), &old) != 0) {
    if (errno != ENOENT || ::fchmod(file_.get(), modeOfNewFiles()) != 0) throwSystemError(documentPath_);
    return;
  }
  if (S_ISDIR(old.st_mode)) throwSystemError(documentPath_, EISDIR);
  if (!S_ISREG(old.st_mode)) throw FileError(documentPath_, "is not a regular file");
  // access() alone would let root write a file that its owner has made read-only.
  const bool markedReadOnly = (old.st_mode & (S_IWUSR | S_IWGRP | S_IWOTH)) == 0;
  if (markedReadOnly || ::access(target_.c_str(), W_OK) != 0) throw FileError(documentPath_, "is read-only");
  // Only root can keep another owner. For other users the file becomes theirs.
  if (::fchown(file_.get(), old.st_uid, old.st_gid) != 0) errno = 0;
  if (::fchmod(file_.get(), old.st_mode & 07777) != 0) throwSystemError(documentPath_);
}

void Replacement::flush() {
  if (::fdatasync(file_.get()) != 0) throwSystemError(documentPath_);
}

void Replacement::flushDevice(std::set<dev_t>& flushed) {
  struct stat status {};
  if (::fstat(file_.get(), &status) != 0) throwSystemError(documentPath_);
  if (flushed.contains(status.st_dev)) return;
  if (::syncfs(file_.get()) != 0) throwSystemError(documentPath_);
  flushed.insert(status.st_dev);
}

/// Gives a nameless file a temporary name, since linkat() cannot replace an existing file.
void Replacement::nameIn(const fs::path& folder) {
  const auto self = "/proc/self/fd/" + std::to_string(file_.get());
  for (unsigned attempt = 0;; ++attempt) {
    const auto name = ".nimbrel-" + std::to_string(::getpid()) + "-" + std::to_string(attempt);
    const auto path = (folder / name).string();
    if (::linkat(AT_FDCWD, self.c_str(), AT_FDCWD, path.c_str(), AT_SYMLINK_FOLLOW) == 0) {
      name_ = path;
      return;
    }
    if (errno != EEXIST) throwSystemError(documentPath_);
  }
}

void Replacement::commit() {
  if (name_.empty()) nameIn(folderOf(target_));
  if (::rename(name_.c_str(), target_.c_str()) != 0) throwSystemError(documentPath_);
  name_.clear();
  if (!file_.close()) throwSystemError(documentPath_);
}

}  // namespace nimbrel
