#include "desktop/window_place.h"

#include <QGuiApplication>
#include <QScreen>
#include <algorithm>
#include <cmath>

namespace nimbrel {
namespace {

constexpr int twipsPerPixel = 15;

/// A stored value may be any number.
int pixels(float twips) {
  constexpr float farthest = 100'000;
  return static_cast<int>(std::lround(std::clamp(twips / twipsPerPixel, -farthest, farthest)));
}

float twips(int pixels) { return static_cast<float>(pixels * twipsPerPixel); }

}  // namespace

int smallestWindowWidth() { return smallestFormWidth / twipsPerPixel; }

Geometry storedPlace(const QRect& place) {
  return {twips(place.x()), twips(place.y()), twips(place.width()), twips(place.height())};
}

QRect placeOnScreen(const Geometry& stored) {
  constexpr int title = 30;  // pixels, the title bar above the geometry
  const QRect wanted(pixels(stored.left), pixels(stored.top), pixels(stored.width), pixels(stored.height));
  const auto* screen = QGuiApplication::screenAt(wanted.center());
  if (screen == nullptr) screen = QGuiApplication::primaryScreen();
  const auto room = screen->availableGeometry().adjusted(0, title, 0, 0);
  QRect fitting(QPoint(), wanted.size().boundedTo(room.size()));
  fitting.moveLeft(std::clamp(wanted.left(), room.left(), room.right() + 1 - fitting.width()));
  fitting.moveTop(std::clamp(wanted.top(), room.top(), room.bottom() + 1 - fitting.height()));
  return fitting;
}

QPoint placeBeside(const QWidget& window, const QSize& size) {
  constexpr int frame = 16;  // pixels, roughly the window manager's frame
  const auto available = window.screen()->availableGeometry();
  const auto whole = window.frameGeometry();
  const int right = whole.right() + 1;
  const int rightmost = available.right() + 1 - size.width() - frame;
  const bool fitsOnTheLeft = whole.left() - size.width() - frame >= available.left();
  const int left = right > rightmost && fitsOnTheLeft ? whole.left() - size.width() - frame : right;
  return {std::clamp(left, available.left(), std::max(rightmost, available.left())), whole.top()};
}

QPoint placeInTheMiddle(const QWidget& window, const QSize& size) {
  return window.screen()->availableGeometry().center() - QRect(QPoint(), size).center();
}

}  // namespace nimbrel
