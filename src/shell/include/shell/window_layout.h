#pragma once

#include "platform/box.h"

/// The layout of the main window. Lengths are twips (1/1440 inch), relative to the inner upper left corner.
namespace nimbrel {

/// The input of the layout.
struct WindowMeasures {
  int formWidth = 0;
  int innerHeight = 0;
  bool toolbarVisible = true;
  int toolbarTop = 0;
  int toolbarHeight = 0;
  bool statusBarVisible = true;
  int statusBarHeight = 0;
  int labelHeight = 0;    ///< of `lblMenuTitle`
  int splitterWidth = 0;  ///< of the grip
  int pixel = 15;         ///< the screen's pixel
};

struct WindowLayout {
  Box lblMenuTitle;
  Box tvTreeView;
  Box imgSplitter;
  Box sheets;
};

inline constexpr int smallestFormWidth = 3000;

/// The layout for a splitter at `x`, which is moved away from the edges if necessary.
WindowLayout SizeControls(const WindowMeasures& window, int x);

/// The position of the bar while the splitter is dragged. The bar can come nearer to the edges than the splitter,
/// which snaps back when the button is released.
int splitterBarLeft(const WindowMeasures& window, int gripLeft, int pointerX);

/// The bar at the start of a drag. It covers the grip.
Box splitterBar(const Box& grip);

}  // namespace nimbrel
