#pragma once

#include <string_view>

namespace nimbrel {

/// What the author is told, word for word, when a command refuses or reports.
struct Message {
  std::string_view title;
  std::string_view text;
};

}  // namespace nimbrel
