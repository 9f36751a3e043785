#include "platform/posix/write_through.h"

#include <cerrno>
#include <charconv>
#include <fcntl.h>
#include <fstream>
#include <iterator>
#include <optional>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include "platform/posix/replacement.h"
#include "platform/posix/strays.h"
#include "platform/posix/system_error.h"

namespace nimbrel {
namespace {

namespace fs = std::filesystem;

std::optional<std::string> bytesIn(const fs::path& path) {
  std::ifstream file(path, std::ios::binary);
  if (!file) return std::nullopt;
  std::string bytes{std::istreambuf_iterator<char>(file), {}};
  return file.bad() ? std::nullopt : std::optional(std::move(bytes));
}

/// Writes the bytes over those of an open file and waits for the disk.
bool overwrite(int descriptor, std::string_view bytes) {
  return ::lseek(descriptor, 0, SEEK_SET) == 0 && writeAll(descriptor, bytes) &&
         ::ftruncate(descriptor, static_cast<off_t>(bytes.size())) == 0 && ::fsync(descriptor) == 0;
}

/// Both sides of the write, after a line with the name of the file and their sizes.
struct Backup {
  std::string name;
  std::string before;
  std::string after;

  std::string text() const {
    return name + '/' + std::to_string(before.size()) + '/' + std::to_string(after.size()) + '\n' + before +
           after;
  }

  static std::optional<Backup> parse(std::string_view text) {
    const auto header = text.substr(0, text.find('\n'));
    const auto second = header.rfind('/');
    const auto first = header.rfind('/', second - 1);
    if (header.size() == text.size() || second == std::string_view::npos || first >= second)
      return std::nullopt;
    const auto number = [](std::string_view digits) {
      std::size_t value = 0;
      const auto read = std::from_chars(digits.data(), digits.data() + digits.size(), value);
      return read.ptr == digits.data() + digits.size() ? value : std::string_view::npos;
    };
    const auto sizeBefore = number(header.substr(first + 1, second - first - 1));
    const auto sizeAfter = number(header.substr(second + 1));
    text.remove_prefix(header.size() + 1);
    if (sizeBefore > text.size() || sizeAfter != text.size() - sizeBefore) return std::nullopt;
    Backup backup{std::string(header.substr(0, first)), std::string(text.substr(0, sizeBefore)),
                  std::string(text.substr(sizeBefore))};
    if (backup.name.empty() || backup.name.find('/') != std::string::npos) return std::nullopt;
    return backup;
  }

  /// Whether each byte is that of one side, as after a write that was interrupted anywhere, in any order.
  bool isMixedIn(std::string_view bytes) const {
    if (bytes.size() > std::max(before.size(), after.size())) return false;
    const auto has = [&](const std::string& side, std::size_t i) {
      return i < side.size() && side[i] == bytes[i];
    };
    for (std::size_t i = 0; i < bytes.size(); ++i) {
      if (!has(before, i) && !has(after, i)) return false;
    }
    return true;
  }
};

/// A file that is removed when it is no longer needed. Locked, so that others see that its process is alive.
class BackupFile {
 public:
  BackupFile(const std::string& documentPath, const fs::path& folder) {
    for (unsigned number = 0; !file_.isOpen(); ++number) {
      path_ = folder / (strayName(number) + backupEnding);
      file_ = Handle(::open(path_.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, S_IRUSR | S_IWUSR));
      if (!file_.isOpen() && errno != EEXIST) throwSystemError(documentPath);
    }
    ::flock(file_.get(), LOCK_EX | LOCK_NB);
  }
  BackupFile(const BackupFile&) = delete;
  BackupFile& operator=(const BackupFile&) = delete;
  ~BackupFile() {
    if (!isKept_) ::unlink(path_.c_str());
  }

  int get() const { return file_.get(); }
  void keep() { isKept_ = true; }

 private:
  fs::path path_;
  Handle file_;
  bool isKept_ = false;
};

}  // namespace

void writeThrough(const std::string& documentPath, const fs::path& target, std::string_view bytes) {
  const Handle file(::open(target.c_str(), O_WRONLY | O_CLOEXEC));
  if (!file.isOpen()) throwSystemError(documentPath);
  const auto old = bytesIn(target);
  if (!old) throwSystemError(documentPath, EIO);
  const Backup backup{target.filename().string(), *old, std::string(bytes)};
  const auto folder = target.has_parent_path() ? target.parent_path() : fs::path(".");
  BackupFile kept(documentPath, folder);
  if (!overwrite(kept.get(), backup.text())) throwSystemError(documentPath);
  flushFolders({folder});
  if (overwrite(file.get(), bytes)) return;
  const int error = errno;
  if (!overwrite(file.get(), *old)) kept.keep();
  throwSystemError(documentPath, error);
}

bool restoreBackup(const fs::path& path) {
  const auto text = bytesIn(path);
  if (!text) return false;
  const auto backup = Backup::parse(*text);
  if (!backup) return true;  // the process died before the backup was whole, so before it touched the file
  const auto target = path.parent_path() / backup->name;
  struct stat status {};
  if (::lstat(target.c_str(), &status) != 0 || !S_ISREG(status.st_mode)) return false;
  const auto bytes = bytesIn(target);
  if (!bytes) return false;
  if (*bytes == backup->before || *bytes == backup->after) return true;
  if (!backup->isMixedIn(*bytes)) return false;
  const Handle file(::open(target.c_str(), O_WRONLY | O_CLOEXEC));
  return file.isOpen() && overwrite(file.get(), backup->before);
}

}  // namespace nimbrel
