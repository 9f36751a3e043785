#pragma once

#include <cstddef>
#include <string>

#include "cli/console.h"

namespace nimbrel {

/// A progress bar on standard error, if that is a terminal. The destructor erases it, so that later output starts on
/// an empty line.
class ProgressBar {
 public:
  ProgressBar(const Console& console, std::size_t total) : console_(console), total_(total) {}
  ProgressBar(const ProgressBar&) = delete;
  ProgressBar& operator=(const ProgressBar&) = delete;
  ~ProgressBar();

  void show(std::size_t done);

 private:
  const Console& console_;
  std::size_t total_;
  std::string line_;
};

}  // namespace nimbrel
