#pragma once

#include <string_view>

namespace nimbrel {

/// A fixed text for a message box.
struct Message {
  std::string_view title;
  std::string_view text;
};

}  // namespace nimbrel
