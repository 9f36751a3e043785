#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/file_system.h"

namespace nimbrel {

/// The paths that a run of file steps created, and the findings of the steps that failed.
struct StepReport {
  std::vector<std::string> made;
  Findings findings;
  bool isComplete = true;  ///< no step has failed; a missing picture is a finding, but no failed step
};

/// File operations that do not throw: a failure becomes a finding.
class FileSteps {
 public:
  FileSteps(FileSystem& files, StepReport& report) : files_(files), report_(report) {}
  /// Creates and copies only inside `limit`: where a link leads out of this folder, the step fails.
  FileSteps(FileSystem& files, StepReport& report, std::string limit)
      : files_(files), report_(report), limit_(std::move(limit)) {}

  const FileSystem& files() const { return files_; }
  void copy(std::string_view from, std::string_view to);
  void generate(std::string_view path, std::string_view bytes);
  void makeFolder(std::string_view path);
  void remove(std::string_view path);
  void removeFilesIn(std::string_view folder);
  void removeFolder(std::string_view path);
  void note(Finding finding);

 private:
  template <class Step>
  bool attempt(Step step);
  void requireInside(std::string_view path) const;

  FileSystem& files_;
  StepReport& report_;
  std::string limit_;  ///< empty: none
};

}  // namespace nimbrel
