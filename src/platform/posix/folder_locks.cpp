#include "platform/posix/folder_locks.h"

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <fcntl.h>
#include <map>
#include <sys/file.h>
#include <sys/stat.h>
#include <thread>
#include <utility>

namespace nimbrel {
namespace {

using Clock = std::chrono::steady_clock;

bool lockUntil(int descriptor, Clock::time_point end) {
  constexpr std::chrono::milliseconds pause{5};
  while (::flock(descriptor, LOCK_EX | LOCK_NB) != 0) {
    if (errno != EWOULDBLOCK && errno != EINTR) return false;
    if (Clock::now() >= end) return false;
    std::this_thread::sleep_for(pause);
  }
  return true;
}

}  // namespace

FolderLocks::FolderLocks(const std::vector<std::filesystem::path>& folders, std::chrono::seconds patience) {
  std::map<std::pair<dev_t, ino_t>, Handle> inOrder;  // one folder may have several paths
  for (const auto& folder : folders) {
    Handle handle(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    struct stat status {};
    if (!handle.isOpen() || ::fstat(handle.get(), &status) != 0) continue;
    inOrder.try_emplace({status.st_dev, status.st_ino}, std::move(handle));
  }
  const auto end = Clock::now() + patience;
  for (auto& [identity, handle] : inOrder) {
    if (lockUntil(handle.get(), end)) locked_.push_back(std::move(handle));
  }
}

bool FolderLocks::holds(const std::filesystem::path& folder) const {
  struct stat named {};
  if (::stat(folder.c_str(), &named) != 0) return false;
  return std::ranges::any_of(locked_, [&](const Handle& handle) {
    struct stat locked {};
    return ::fstat(handle.get(), &locked) == 0 && locked.st_dev == named.st_dev &&
           locked.st_ino == named.st_ino;
  });
}

}  // namespace nimbrel
