#pragma once

#include <chrono>
#include <condition_variable>
#include <mutex>
#include <optional>
#include <string>
#include <thread>
#include <vector>

#include "recovery/menu_mirror.h"
#include "recovery/recovery_folder.h"

namespace nimbrel {

/// Keeps the recovery file of this program in a thread of its own. A file is written at most `gathering` after the first
/// change that it lacks, or as soon as the last one is written.
class RecoveryWriter {
 public:
  static constexpr std::chrono::milliseconds gathering{600};

  /// The file system must allow calls from another thread.
  RecoveryWriter(FileSystem& files, std::string stateFolder);
  RecoveryWriter(const RecoveryWriter&) = delete;
  RecoveryWriter& operator=(const RecoveryWriter&) = delete;
  /// Writes what is not written yet and leaves the file, so that a program that ends in any way but by closing its window
  /// loses nothing.
  ~RecoveryWriter();

  /// Notes a change of the document. The first one must be a whole menu.
  void post(RecoveryHead head, MenuChange change);

  /// Removes the file, as nothing is unsaved. Waits for a file that is being written.
  void discard();

  /// Goes on with the folder of an orphan, whose file stays until the next one replaces it.
  void adopt(RecoveryFolder folder);

  /// Returns why the last write failed, once for each row of failures.
  std::optional<Finding> takeFailure();

 private:
  void run();
  void write();
  void note(const FileError& error);

  FileSystem& files_;
  std::string stateFolder_;
  // `writing_` is held while the folder is used and is taken before `mutex_`, which guards the rest.
  std::mutex writing_;
  std::optional<RecoveryFolder> folder_;
  MenuMirror mirror_;
  std::mutex mutex_;
  std::condition_variable wake_;
  std::vector<MenuChange> changes_;  ///< not yet in the mirror
  RecoveryHead head_;
  std::optional<std::chrono::steady_clock::time_point> due_;  ///< of the next write
  bool isEnding_ = false;
  bool hasFailed_ = false;
  std::optional<Finding> failure_;
  std::thread thread_;  ///< the last member: it uses the others
};

}  // namespace nimbrel
