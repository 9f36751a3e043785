#pragma once

#include "platform/box.h"

/// Where the parts of the main window go. All lengths are twips, 1/1440 inch, from the inner upper left corner.
namespace nimbrel {

/// What the layout of the main window depends on.
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

/// The layout for a splitter at `x`, which is kept off the edges.
WindowLayout SizeControls(const WindowMeasures& window, int x);

/// Where the bar stands that follows the pointer while the splitter is dragged. It goes nearer to the edges than
/// the layout allows, which snaps back when the pointer is let go.
int splitterBarLeft(const WindowMeasures& window, int gripLeft, int pointerX);

/// The bar at the start of a drag, over the grip.
Box splitterBar(const Box& grip);

}  // namespace nimbrel
