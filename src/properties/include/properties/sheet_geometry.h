#pragma once

#include <array>
#include <cstddef>
#include <functional>

#include "platform/box.h"
#include "properties/property_row.h"

/// Where the parts of a property sheet stand. All lengths are twips, places are relative to the sheet; cells
/// are given as the grid gives them, relative to the grid.
namespace nimbrel {

/// What a screen and its fonts say.
struct SheetMetrics {
  int pixelWidth = 15;  ///< of a screen's pixel
  int pixelHeight = 15;
  int StandardCellHeight = 0;  ///< of a row of the grid
  int titleHeight = 0;         ///< of `lblTitle`
  int helpLabelHeight = 0;     ///< of `HelpLabel1`
  int textHeight = 0;          ///< of "A" in a list
  int swatchWidth = 0;         ///< of the picture in a colour cell
  int widestCaption = 0;       ///< of the captions as text
  int exampleLinkWidth = 0;    ///< of "Live Example" as text

  int CaptionWidth() const { return widestCaption + 8 * pixelWidth; }
  /// All small buttons are squares.
  int buttonSide() const { return StandardCellHeight + 2 * pixelHeight; }
};

inline constexpr int splitterHeight = 60;
inline constexpr int smallestSheet = 500;  ///< in either direction

/// Where the splitter stands at first.
int initialSplitterTop(int sheetHeight, const SheetMetrics& metrics);
/// What `HelpPanel` has below the splitter, and keeps when the sheet gets another size.
int HelpHeight(int sheetHeight, int splitterTop);
/// Where the splitter goes in a sheet of another height.
int splitterTopAfterResize(int sheetHeight, int helpHeight, const SheetMetrics& metrics);
/// Where the shadow of the splitter is while the pointer is that far from the bar's top.
int draggedSplitterTop(int barTop, int pointerOffset, int sheetHeight);

struct SheetLayout {
  Box lblTitle, Grid, imgSplitter, picSplitter, HelpPanel;
  Box HelpLabel1, HelpLabel2;    ///< in the panel, which cuts the second one off
  int lblExamplesLinkRight = 0;  ///< right edges, in the panel
  int lblMoreHelpLinkRight = 0;
};

SheetLayout LayoutSheet(int width, int height, int splitterTop, const SheetMetrics& metrics);
/// The shadow bar as it comes up for dragging.
Box draggingShadow(const Box& imgSplitter);

/// Sets the widths of the columns in order. A width can make the grid's scroll bar come or go, so that
/// `FindScrollWidth` is asked anew ahead of each one that depends on it.
void layoutColumns(bool hasStates, int gridWidth, const SheetMetrics& metrics,
                   const std::function<int()>& FindScrollWidth,
                   const std::function<void(int column, int width)>& setWidth);

/// The editors over a cell. The button is `buttonSide` square, and there in all kinds but texts and numbers.
struct EditorPlaces {
  Box entry;
  int buttonLeft = 0;
  int buttonTop = 0;
  Box list;
};

/// `entries` is the length of a list row's list.
EditorPlaces placeEditors(PropertyKind kind, const Box& cell, const Box& grid, int sheetHeight,
                          std::size_t entries, const SheetMetrics& metrics);
/// Where `btnReplicate` stands over its own column's cell.
Box replicatePlace(const Box& cell, const Box& grid, const SheetMetrics& metrics);

/// Whether an open row can be seen in a grid whose first row below the heading is `topRow`.
bool rowInSight(int row, int topRow, int gridHeight, const SheetMetrics& metrics);

/// The box within the swatch, a square as high as its cell.
Box swatchBox(int cellHeight);

}  // namespace nimbrel
