#include "properties/sheet_geometry.h"

#include <gtest/gtest.h>
#include <map>

namespace nimbrel {
namespace {

constexpr SheetMetrics metrics{.StandardCellHeight = 240,
                               .titleHeight = 200,
                               .helpLabelHeight = 200,
                               .textHeight = 170,
                               .swatchWidth = 225,
                               .widestCaption = 1000,
                               .exampleLinkWidth = 800};

TEST(SheetGeometry, SplitterKeepsADistanceFromTheEdges) {
  EXPECT_EQ(initialSplitterTop(5000, metrics), 4140);
  EXPECT_EQ(initialSplitterTop(500, metrics), 190);
  EXPECT_EQ(splitterTopAfterResize(6000, HelpHeight(5000, 4000), metrics), 5000);
  EXPECT_EQ(splitterTopAfterResize(900, 940, metrics), 300);  // the grid has priority
  EXPECT_EQ(draggedSplitterTop(1000, -900, 5000), 300);
  EXPECT_EQ(draggedSplitterTop(1000, 9000, 5000), 4700);
}

TEST(SheetGeometry, PartsFillTheSheet) {
  const auto layout = LayoutSheet(3000, 5000, 4000, metrics);
  EXPECT_EQ(layout.lblTitle.height + layout.Grid.height + layout.imgSplitter.height + layout.HelpPanel.height,
            5000);
}

TEST(SheetGeometry, ColumnsFillTheGridWhenAScrollBarAppears) {
  for (const bool hasStates : {false, true}) {
    std::map<int, int> widths;
    int whole = 0;
    layoutColumns(
        hasStates, 6090, metrics, [&] { return widths.empty() ? 0 : 255; },
        [&](int col, int width) { whole += widths[col] = width; });
    EXPECT_EQ(whole, 6000 - 255);
  }
}

TEST(SheetGeometry, EditorsLieInTheirCell) {
  const Box grid{0, 200, 3000, 3000};
  const Box cell{1000, 480, 2000, 240};
  const int right = cell.left + cell.width;
  const auto colour = placeEditors(KindColour, cell, grid, 5000, 0, metrics);
  EXPECT_EQ(colour.buttonLeft + metrics.buttonSide(), right - metrics.pixelWidth);
  EXPECT_GT(colour.entry.left, cell.left + metrics.swatchWidth);
  EXPECT_LE(colour.entry.left + colour.entry.width, colour.buttonLeft + metrics.pixelWidth);
  EXPECT_EQ(placeEditors(KindText, cell, grid, 5000, 0, metrics).entry.width, 1955);

  EXPECT_EQ(placeEditors(KindList, cell, grid, 5000, 1'000'000, metrics).list, (Box{1000, 920, 2000, 1600}));
  // Quirk: above the cell, the list ignores where the grid starts.
  EXPECT_EQ(placeEditors(KindList, cell, grid, 1500, 3, metrics).list.top, cell.top - 600);
}

TEST(SheetGeometry, APartlyVisibleLastRowIsOutOfSight) {
  const int height = 10 * (240 + 30) + 100;
  EXPECT_FALSE(rowInSight(3, 4, height, metrics));
  EXPECT_TRUE(rowInSight(4, 4, height, metrics) && rowInSight(12, 4, height, metrics));
  EXPECT_FALSE(rowInSight(13, 4, height, metrics));
}

}  // namespace
}  // namespace nimbrel
