#pragma once

namespace nimbrel {

/// A rectangle in a window, in twips.
struct Box {
  int left = 0;
  int top = 0;
  int width = 0;
  int height = 0;

  bool operator==(const Box&) const = default;
};

}  // namespace nimbrel
