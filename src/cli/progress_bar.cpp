#include "cli/progress_bar.h"

#include <ostream>

namespace nimbrel {
namespace {

constexpr std::size_t width = 40;

}  // namespace

void ProgressBar::show(std::size_t done) {
  if (!console_.errIsTerminal() || total_ == 0) return;
  const auto filled = done * width / total_;
  const auto percent = std::to_string(done * 100 / total_);
  const auto line = "[" + std::string(filled, '#') + std::string(width - filled, '.') + "] " + percent + " %";
  if (line == line_) return;  // writing to a terminal is slow
  console_.err() << '\r' << line << std::flush;
  line_ = line;
}

ProgressBar::~ProgressBar() {
  if (!line_.empty()) console_.err() << '\r' << std::string(line_.size(), ' ') << '\r' << std::flush;
}

}  // namespace nimbrel
