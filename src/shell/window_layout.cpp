#include "shell/window_layout.h"

#include <algorithm>

namespace nimbrel {
namespace {

constexpr int layoutMargin = 1500;
constexpr int barMargin = 500;
constexpr int gapBeforeSheets = 40;
constexpr int sheetMargin = 140;

/// In a narrow window the right limit has priority.
int withinMargins(int x, int formWidth, int margin) {
  x = std::max(x, margin);
  return x > formWidth - margin ? formWidth - margin : x;
}

}  // namespace

WindowLayout SizeControls(const WindowMeasures& window, int x) {
  x = withinMargins(x, window.formWidth, layoutMargin);
  WindowLayout layout;
  const int labelTop = window.toolbarVisible ? window.toolbarTop + window.toolbarHeight : 0;
  layout.lblMenuTitle = {0, labelTop, x, window.labelHeight};
  const int treeTop = labelTop + window.labelHeight + window.pixel;
  const int treeHeight = window.statusBarVisible
                             ? window.innerHeight - (window.statusBarHeight + labelTop + window.labelHeight)
                             : window.innerHeight - labelTop;
  layout.tvTreeView = {0, treeTop, x, treeHeight};
  layout.imgSplitter = {x, treeTop, window.splitterWidth, treeHeight};
  layout.sheets = {x + gapBeforeSheets, labelTop, window.formWidth - (x + sheetMargin),
                   treeHeight + window.labelHeight + window.pixel};
  return layout;
}

int splitterBarLeft(const WindowMeasures& window, int gripLeft, int pointerX) {
  return withinMargins(gripLeft + pointerX, window.formWidth, barMargin);
}

Box splitterBar(const Box& grip) {
  constexpr int shorter = 20;
  return {grip.left, grip.top, grip.width / 2, grip.height - shorter};
}

}  // namespace nimbrel
