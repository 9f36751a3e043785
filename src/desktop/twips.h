#pragma once

#include <QRect>
#include <cmath>

#include "platform/box.h"

/// The library measures the screen in twips, 1/1440 inch; Qt in pixels that are independent of the screen, 96 to
/// the inch.
namespace nimbrel {

inline constexpr int twipsPerPixel = 15;

constexpr int toTwips(int pixels) { return pixels * twipsPerPixel; }
constexpr int toPixels(int twips) { return twips / twipsPerPixel; }
inline int toPixels(float twips) { return static_cast<int>(std::lround(twips / twipsPerPixel)); }

inline Box toTwips(const QRect& place) {
  return {toTwips(place.x()), toTwips(place.y()), toTwips(place.width()), toTwips(place.height())};
}
inline QRect toPixels(const Box& box) {
  return {toPixels(box.left), toPixels(box.top), toPixels(box.width), toPixels(box.height)};
}

}  // namespace nimbrel
