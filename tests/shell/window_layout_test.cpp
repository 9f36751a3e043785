#include "shell/window_layout.h"

#include <gtest/gtest.h>

namespace nimbrel {
namespace {

constexpr WindowMeasures window{.formWidth = 9000,
                                .innerHeight = 6000,
                                .toolbarTop = 30,
                                .toolbarHeight = 420,
                                .statusBarHeight = 300,
                                .labelHeight = 250,
                                .splitterWidth = 60};

TEST(WindowLayout, SplitsTheWindowAtTheSplitter) {
  const auto layout = SizeControls(window, 3000);
  EXPECT_EQ(layout.tvTreeView, (Box{0, 715, 3000, 5000}));
  EXPECT_EQ(layout.sheets, (Box{3040, 450, 5860, 5265}));

  auto bare = window;
  bare.toolbarVisible = bare.statusBarVisible = false;
  EXPECT_EQ(SizeControls(bare, 3000).tvTreeView, (Box{0, 265, 3000, 6000}));
}

TEST(WindowLayout, TheDraggedBarComesNearerToTheEdgesThanTheSplitter) {
  EXPECT_EQ(splitterBarLeft(window, 3000, -2900), 500);
  EXPECT_EQ(splitterBarLeft(window, 3000, 9000), 8500);
  EXPECT_EQ(SizeControls(window, 500).tvTreeView.width, 1500);
  EXPECT_EQ(SizeControls(window, 8500).tvTreeView.width, 7500);
}

}  // namespace
}  // namespace nimbrel
