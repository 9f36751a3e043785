#pragma once

#include <cstddef>
#include <string>

#include "cli/console.h"

namespace nimbrel {

/// A line on standard error that shows how far long work is; nothing where that is no terminal. The line is
/// taken away with the object, so that what is printed behind it starts clean.
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
  std::string shown_;
};

}  // namespace nimbrel
