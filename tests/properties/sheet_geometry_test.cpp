#include "properties/sheet_geometry.h"

#include <gtest/gtest.h>
#include <map>
#include <numeric>

namespace nimbrel {
namespace {

constexpr SheetMetrics metrics{.StandardCellHeight = 240,
                               .titleHeight = 200,
                               .helpLabelHeight = 200,
                               .textHeight = 170,
                               .swatchWidth = 225,
                               .widestCaption = 1000,
                               .exampleLinkWidth = 800};

TEST(SheetGeometry, SplitterKeepsOffTheEdges) {
  EXPECT_EQ(initialSplitterTop(5000, metrics), 5000 - 800 - 60);
  EXPECT_EQ(initialSplitterTop(1000, metrics), 250);
  EXPECT_EQ(initialSplitterTop(500, metrics), 190);
  EXPECT_EQ(splitterTopAfterResize(6000, HelpHeight(5000, 4000), metrics), 5000);
  EXPECT_EQ(splitterTopAfterResize(6000, 100, metrics), 5690);  // the help keeps its least
  EXPECT_EQ(splitterTopAfterResize(900, 940, metrics), 300);    // the grid comes first
  EXPECT_EQ(draggedSplitterTop(1000, 50, 5000), 1050);
  EXPECT_EQ(draggedSplitterTop(1000, -900, 5000), 300);
  EXPECT_EQ(draggedSplitterTop(1000, 9000, 5000), 4700);
}

TEST(SheetGeometry, PartsFillTheSheet) {
  const auto layout = LayoutSheet(3000, 5000, 4000, metrics);
  EXPECT_EQ(layout.lblTitle.height + layout.Grid.height + layout.imgSplitter.height + layout.HelpPanel.height,
            5000);
  EXPECT_EQ(layout.HelpLabel2, (Box{0, 200, 2940, layout.HelpPanel.height}));
  EXPECT_EQ(layout.lblExamplesLinkRight, 2850);
  EXPECT_EQ(layout.lblMoreHelpLinkRight, 3000 - 350 - 800);
}

TEST(SheetGeometry, ColumnsFillTheGridWithAScrollBarThatComes) {
  for (const bool hasStates : {false, true}) {
    std::map<int, int> widths;
    const auto scrollWidth = [&] { return widths.empty() ? 0 : 255; };
    layoutColumns(hasStates, 6090, metrics, scrollWidth, [&](int col, int width) { widths[col] = width; });
    const auto whole = std::accumulate(widths.begin(), widths.end(), 0,
                                       [](int sum, const auto& entry) { return sum + entry.second; });
    EXPECT_EQ(whole, 6000 - 255);
    EXPECT_EQ(widths[column::Caption], 1120);
    EXPECT_EQ(widths[column::Normal], hasStates ? (6000 - 1120 - 255 - 270) / 3 : 6000 - 1120 - 255);
  }
}

TEST(SheetGeometry, EditorsStandOverTheirCell) {
  const Box grid{0, 200, 3000, 3000};
  const Box cell{1000, 480, 2000, 240};
  const auto text = placeEditors(KindText, cell, grid, 5000, 0, metrics);
  EXPECT_EQ(text.entry, (Box{1045, 725, 1955, 195}));
  const auto colour = placeEditors(KindColour, cell, grid, 5000, 0, metrics);
  EXPECT_EQ(colour.entry, (Box{1045 + 225, 725, 1955 - 270 - 225, 195}));
  EXPECT_EQ(colour.buttonLeft + metrics.buttonSide(), 3000 - 15);

  const auto list = placeEditors(KindList, cell, grid, 5000, 3, metrics);
  EXPECT_EQ(list.list, (Box{1000, 920, 2000, 600}));
  EXPECT_EQ(placeEditors(KindList, cell, grid, 5000, 1'000'000, metrics).list.height, 1600);
  // Turned over, by the grid's place too high.
  EXPECT_EQ(placeEditors(KindList, cell, grid, 1500, 3, metrics).list.top, 480 - 600);
}

TEST(SheetGeometry, LastRowInSightIsCutOff) {
  const int height = 10 * (240 + 30) + 100;
  EXPECT_TRUE(rowInSight(4, 4, height, metrics));
  EXPECT_FALSE(rowInSight(3, 4, height, metrics));
  EXPECT_TRUE(rowInSight(12, 4, height, metrics));
  EXPECT_FALSE(rowInSight(13, 4, height, metrics));
}

}  // namespace
}  // namespace nimbrel
