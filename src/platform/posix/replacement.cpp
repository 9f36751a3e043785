#include "platform/posix/replacement.h"

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <map>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>
#include <utility>
#include <vector>

#include "platform/file_error.h"
#include "platform/posix/host_paths.h"
#include "platform/posix/strays.h"
#include "platform/posix/system_error.h"
#include "platform/posix/write_through.h"

namespace nimbrel {
namespace {

namespace fs = std::filesystem;

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

bool writeAll(int descriptor, std::string_view bytes) {
  while (!bytes.empty()) {
    const auto written = ::write(descriptor, bytes.data(), bytes.size());
    if (written < 0 && errno == EINTR) continue;
    if (written < 0) return false;
    bytes.remove_prefix(static_cast<std::size_t>(written));
  }
  return true;
}

void flushFolders(const std::set<fs::path>& folders) {
  constexpr std::size_t few = 4;  // from here on, one flush of the device is faster
  std::map<dev_t, std::vector<Handle>> open;
  for (const auto& folder : folders) {
    Handle handle(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    struct stat status {};
    if (handle.isOpen() && ::fstat(handle.get(), &status) == 0)
      open[status.st_dev].push_back(std::move(handle));
  }
  for (const auto& [device, handles] : open) {
    if (handles.size() > few) {
      ::syncfs(handles.front().get());
    } else {
      for (const auto& handle : handles) ::fsync(handle.get());
    }
  }
}

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
  removeStrays(folder());
  struct stat old {};
  const bool exists = findOld(old);
  if (exists && old.st_nlink > 1) {
    inPlace_ = bytes;
    return;
  }
  open();
  if (exists) {
    adoptAttributes(old);
  } else if (::fchmod(file_.get(), modeOfNewFiles()) != 0) {
    throwSystemError(documentPath_);
  }
  if (!writeAll(file_.get(), bytes)) throwSystemError(documentPath_);
}

Replacement::~Replacement() {
  if (file_.isOpen() && !name_.empty()) ::unlink(name_.c_str());
}

fs::path Replacement::folder() const { return folderOf(target_); }

/// Prefers a file without a name, of which nothing remains even if the process is killed.
void Replacement::open() {
  const bool canBeNamed = ::access("/proc/self/fd", X_OK) == 0;
  errno = EOPNOTSUPP;
  if (canBeNamed) {
    file_ = Handle(::open(folder().c_str(), O_TMPFILE | O_WRONLY | O_CLOEXEC, S_IRUSR | S_IWUSR));
  }
  if (!file_.isOpen()) {
    if (errno != EOPNOTSUPP && errno != EISDIR && errno != EINVAL) throwSystemError(documentPath_);
    for (unsigned number = 0; !file_.isOpen(); ++number) {
      name_ = (folder() / strayName(number)).string();
      file_ = Handle(::open(name_.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, S_IRUSR | S_IWUSR));
      if (!file_.isOpen() && errno != EEXIST) throwSystemError(documentPath_);
    }
  }
  ::flock(file_.get(), LOCK_EX | LOCK_NB);  // shows others that this process is alive; see `removeStrays`
}

/// Returns false if there is no old file. Throws if it is not a writable regular file.
bool Replacement::findOld(struct stat& old) const {
  if (::stat(target_.c_str(), &old) != 0) {
    if (errno != ENOENT) throwSystemError(documentPath_);
    return false;
  }
  if (S_ISDIR(old.st_mode)) throwSystemError(documentPath_, EISDIR);
  if (!S_ISREG(old.st_mode)) throw FileError(documentPath_, "is not a regular file");
  // access() alone would let root write a file that its owner has made read-only.
  const bool markedReadOnly = (old.st_mode & (S_IWUSR | S_IWGRP | S_IWOTH)) == 0;
  if (markedReadOnly || ::access(target_.c_str(), W_OK) != 0) throw FileError(documentPath_, "is read-only");
  return true;
}

void Replacement::adoptAttributes(const struct stat& old) const {
  // Only root can keep another owner. Members of the group can keep the group.
  constexpr auto unchanged = static_cast<uid_t>(-1);
  if (::fchown(file_.get(), old.st_uid, old.st_gid) != 0 && ::fchown(file_.get(), unchanged, old.st_gid) != 0)
    errno = 0;
  if (::fchmod(file_.get(), old.st_mode & 07777) != 0) throwSystemError(documentPath_);
  adoptExtendedAttributes();
}

/// Those that the file system or the user's rights do not allow are lost.
void Replacement::adoptExtendedAttributes() const {
  const auto size = ::listxattr(target_.c_str(), nullptr, 0);
  if (size <= 0) return;
  std::string names(static_cast<std::size_t>(size), '\0');
  const auto listed = ::listxattr(target_.c_str(), names.data(), names.size());
  names.resize(static_cast<std::size_t>(std::max<ssize_t>(listed, 0)));
  for (std::size_t begin = 0; begin < names.size();) {
    const std::string name = names.c_str() + begin;  // each ends in a zero byte
    begin += name.size() + 1;
    const auto length = ::getxattr(target_.c_str(), name.c_str(), nullptr, 0);
    if (length < 0) continue;
    std::string value(static_cast<std::size_t>(length), '\0');
    const auto got = ::getxattr(target_.c_str(), name.c_str(), value.data(), value.size());
    if (got >= 0) ::fsetxattr(file_.get(), name.c_str(), value.data(), static_cast<std::size_t>(got), 0);
  }
}

void Replacement::flush() {
  if (!inPlace_ && ::fdatasync(file_.get()) != 0) throwSystemError(documentPath_);
}

void Replacement::flushDevice(std::set<dev_t>& flushed) {
  if (inPlace_) return;
  struct stat status {};
  if (::fstat(file_.get(), &status) != 0) throwSystemError(documentPath_);
  if (flushed.contains(status.st_dev)) return;
  if (::syncfs(file_.get()) != 0) throwSystemError(documentPath_);
  flushed.insert(status.st_dev);
}

/// Gives a nameless file a temporary name, since linkat() cannot replace an existing file.
void Replacement::nameFile() {
  const auto self = "/proc/self/fd/" + std::to_string(file_.get());
  for (unsigned number = 0; name_.empty(); ++number) {
    const auto path = (folder() / strayName(number)).string();
    if (::linkat(AT_FDCWD, self.c_str(), AT_FDCWD, path.c_str(), AT_SYMLINK_FOLLOW) == 0) {
      name_ = path;
    } else if (errno != EEXIST) {
      throwSystemError(documentPath_);
    }
  }
}

void Replacement::commit() {
  if (inPlace_) {
    writeThrough(documentPath_, target_, *inPlace_);
    return;
  }
  // Some file systems report a failed write only here. The copy of the descriptor keeps the lock.
  Handle copy(::dup(file_.get()));
  if (!copy.isOpen() || !copy.close()) throwSystemError(documentPath_);
  if (name_.empty()) nameFile();
  if (::rename(name_.c_str(), target_.c_str()) != 0) throwSystemError(documentPath_);
  name_.clear();
  file_.close();
}

}  // namespace nimbrel
