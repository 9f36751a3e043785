#pragma once

#include <cstdlib>

namespace nimbrel {

/// Ends the fuzz target with a crash unless the condition holds.
inline void require(bool holds) {
  if (!holds) std::abort();
}

}  // namespace nimbrel
