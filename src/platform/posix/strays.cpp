#include "platform/posix/strays.h"

#include <algorithm>
#include <fcntl.h>
#include <mutex>
#include <set>
#include <string_view>
#include <sys/file.h>
#include <sys/stat.h>
#include <system_error>
#include <tuple>
#include <unistd.h>
#include <vector>

#include "platform/posix/replacement.h"
#include "platform/posix/write_through.h"

namespace nimbrel {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view prefix = ".nimbrel-";

bool isNumber(std::string_view text) {
  return !text.empty() && std::ranges::all_of(text, [](char c) { return c >= '0' && c <= '9'; });
}

bool isStrayName(std::string_view name) {
  if (!name.starts_with(prefix)) return false;
  name.remove_prefix(prefix.size());
  if (name.ends_with(backupEnding)) name.remove_suffix(std::string_view(backupEnding).size());
  const auto hyphen = name.find('-');
  return hyphen != std::string_view::npos && isNumber(name.substr(0, hyphen)) &&
         isNumber(name.substr(hyphen + 1));
}

/// Whether the file is ours and no living process uses it.
bool isAbandoned(const fs::path& path) {
  const Handle file(::open(path.c_str(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC));
  struct stat status {};
  if (!file.isOpen() || ::fstat(file.get(), &status) != 0) return false;
  const bool isOurs = S_ISREG(status.st_mode) && status.st_uid == ::geteuid();
  return isOurs && ::flock(file.get(), LOCK_EX | LOCK_NB) == 0;
}

bool isFirstVisit(const fs::path& folder) {
  static std::mutex mutex;
  static std::set<std::tuple<pid_t, dev_t, ino_t>> visited;
  struct stat status {};
  if (::stat(folder.c_str(), &status) != 0) return false;
  const std::lock_guard guard(mutex);
  return visited.emplace(::getpid(), status.st_dev, status.st_ino).second;
}

}  // namespace

std::string strayName(unsigned number) {
  return std::string(prefix) + std::to_string(::getpid()) + '-' + std::to_string(number);
}

void removeStrays(const fs::path& folder) {
  if (!isFirstVisit(folder)) return;
  std::vector<fs::path> strays;
  std::error_code error;
  for (fs::directory_iterator entry(folder, error), end; !error && entry != end; entry.increment(error)) {
    if (isStrayName(entry->path().filename().string())) strays.push_back(entry->path());
  }
  for (const auto& stray : strays) {
    if (!isAbandoned(stray)) continue;
    const bool isBackup = stray.extension() == backupEnding;
    if (!isBackup || restoreBackup(stray)) ::unlink(stray.c_str());
  }
}

}  // namespace nimbrel
