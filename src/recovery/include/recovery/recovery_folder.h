#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/file_system.h"
#include "recovery/recovery_file.h"

namespace nimbrel {

/// The folder of one running program, locked as long as this exists. All calls but `orphans` can
/// throw `FileError`.
class RecoveryFolder {
 public:
  /// Creates a folder in the state folder, and that too if need be.
  static RecoveryFolder create(FileSystem& files, const std::string& stateFolder);

  /// The folders of programs that ended without removing them, with a file in each. Removes those without a file.
  static std::vector<RecoveryFolder> orphans(FileSystem& files, const std::string& stateFolder);

  /// The file in the folder, or nullopt if it is none of ours.
  std::optional<RecoveryFile> read() const;
  void write(std::string_view bytes);
  /// Removes the folder with all that is in it.
  void remove();

 private:
  RecoveryFolder(FileSystem& files, std::string path, std::unique_ptr<FolderLock> lock)
      : files_(&files), path_(std::move(path)), lock_(std::move(lock)) {}

  std::string file() const { return path_ + "\\document"; }

  FileSystem* files_;
  std::string path_;
  std::unique_ptr<FolderLock> lock_;
};

}  // namespace nimbrel
