#pragma once

#include <QRect>
#include <QWidget>

#include "shell/main_window.h"

/// The places of windows on the screen. They are stored in twips (1/1440 inch); Qt counts device-independent pixels (1/96
/// inch).
namespace nimbrel {

/// The width of the smallest main window.
int smallestWindowWidth();

Geometry storedPlace(const QRect& place);

/// A stored place, moved and shrunk to fit if that screen is gone or has become smaller.
QRect placeOnScreen(const Geometry& stored);

/// The place of a window of this size to the right of `window` if the screen has room, else to its left, so that neither
/// hides the other.
QPoint placeBeside(const QWidget& window, const QSize& size);

/// The place of a window of this size in the middle of the screen of `window`.
QPoint placeInTheMiddle(const QWidget& window, const QSize& size);

}  // namespace nimbrel
