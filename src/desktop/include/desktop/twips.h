#pragma once

#include <QRect>
#include <algorithm>
#include <cmath>

#include "platform/box.h"

/// The library measures the screen in twips (1/1440 inch), Qt in device-independent pixels (1/96 inch).
namespace nimbrel {

inline constexpr int twipsPerPixel = 15;

constexpr int toTwips(int pixels) { return pixels * twipsPerPixel; }
constexpr int toPixels(int twips) { return twips / twipsPerPixel; }
/// For stored values, which may be any number.
inline int toPixels(float twips) {
  constexpr float farthest = 100'000;
  return static_cast<int>(std::lround(std::clamp(twips / twipsPerPixel, -farthest, farthest)));
}

inline Box toTwips(const QRect& place) {
  return {toTwips(place.x()), toTwips(place.y()), toTwips(place.width()), toTwips(place.height())};
}
inline QRect toPixels(const Box& box) {
  return {toPixels(box.left), toPixels(box.top), toPixels(box.width), toPixels(box.height)};
}

}  // namespace nimbrel
