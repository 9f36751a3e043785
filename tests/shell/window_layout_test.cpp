#include "shell/window_layout.h"

#include <gtest/gtest.h>

namespace nimbrel {
namespace {

WindowMeasures measures() {
  return {.formWidth = 9000,
          .innerHeight = 6000,
          .toolbarTop = 30,
          .toolbarHeight = 420,
          .statusBarHeight = 300,
          .labelHeight = 250,
          .splitterWidth = 60};
}

TEST(WindowLayout, PartsTheWindowAtTheSplitter) {
  const auto layout = SizeControls(measures(), 3000);
  EXPECT_EQ(layout.lblMenuTitle.top, 450);
  EXPECT_EQ(layout.tvTreeView, (Box{0, 715, 3000, 6000 - (300 + 450 + 250)}));
  EXPECT_EQ(layout.sheets.left, 3040);
  EXPECT_EQ(layout.sheets.top, 450);
  EXPECT_EQ(layout.sheets.width, 9000 - 3140);
  EXPECT_EQ(layout.sheets.height, layout.tvTreeView.height + 250 + 15);
  EXPECT_EQ(layout.imgSplitter.left, 3000);
  EXPECT_EQ(layout.imgSplitter.height, layout.tvTreeView.height);
}

TEST(WindowLayout, BarGoesNearerToTheEdgesThanTheLayout) {
  const auto window = measures();
  EXPECT_EQ(splitterBarLeft(window, 3000, -2900), 500);
  EXPECT_EQ(splitterBarLeft(window, 3000, 9000), 8500);
  EXPECT_EQ(SizeControls(window, 500).tvTreeView.width, 1500);
  EXPECT_EQ(SizeControls(window, 8500).tvTreeView.width, 7500);
}

TEST(WindowLayout, WithoutBarsTheTreeTakesTheirRoom) {
  auto window = measures();
  window.toolbarVisible = window.statusBarVisible = false;
  const auto layout = SizeControls(window, 3000);
  EXPECT_EQ(layout.lblMenuTitle.top, 0);
  EXPECT_EQ(layout.tvTreeView.top, 265);
  EXPECT_EQ(layout.tvTreeView.height, 6000);
}

}  // namespace
}  // namespace nimbrel
