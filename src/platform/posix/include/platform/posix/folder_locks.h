#pragma once

#include <chrono>
#include <filesystem>
#include <vector>

#include "platform/file_system.h"
#include "platform/posix/replacement.h"

namespace nimbrel {

/// Locks on folders themselves, so that they need no file. The system releases them with the process at the latest. Each
/// program takes them in the same order, so that no two wait for each other. A folder that cannot be locked, or that
/// another program keeps locked for longer than `patience`, is left out.
class FolderLocks : public FolderLock {
 public:
  explicit FolderLocks(const std::vector<std::filesystem::path>& folders,
                       std::chrono::seconds patience = usualPatience);

  /// Whether the folder that has this path now is locked.
  bool holds(const std::filesystem::path& folder) const;

  static constexpr std::chrono::seconds usualPatience{10};

 private:
  std::vector<Handle> locked_;
};

}  // namespace nimbrel
