#pragma once

#include <array>
#include <cstddef>
#include <functional>

#include "platform/box.h"
#include "properties/property_row.h"

/// The layout of a property sheet. Lengths are twips. Positions are relative to the sheet, but those of cells to the
/// grid.
namespace nimbrel {

/// Sizes that depend on the screen and its fonts.
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
  /// The side of the small buttons, which are square.
  int buttonSide() const { return StandardCellHeight + 2 * pixelHeight; }
};

inline constexpr int splitterHeight = 60;
inline constexpr int smallestSheet = 500;  ///< in either direction

/// The position of the splitter in a new sheet.
int initialSplitterTop(int sheetHeight, const SheetMetrics& metrics);
/// The height of `HelpPanel`, which stays the same when the sheet is resized.
int HelpHeight(int sheetHeight, int splitterTop);
/// The position of the splitter after a resize.
int splitterTopAfterResize(int sheetHeight, int helpHeight, const SheetMetrics& metrics);
/// The position of the shadow while the splitter is dragged; `pointerOffset` is relative to the top of the bar.
int draggedSplitterTop(int barTop, int pointerOffset, int sheetHeight);

struct SheetLayout {
  Box lblTitle, Grid, imgSplitter, picSplitter, HelpPanel;
  Box HelpLabel1, HelpLabel2;    ///< relative to the panel, which clips the second
  int lblExamplesLinkRight = 0;  ///< right edges, relative to the panel
  int lblMoreHelpLinkRight = 0;
};

SheetLayout LayoutSheet(int width, int height, int splitterTop, const SheetMetrics& metrics);
/// The shadow bar at the start of a drag.
Box draggingShadow(const Box& imgSplitter);

/// Sets the widths of the columns in order. A width can show or hide the scroll bar of the grid, so `FindScrollWidth`
/// is called again for each width that depends on it.
void layoutColumns(bool hasStates, int gridWidth, const SheetMetrics& metrics,
                   const std::function<int()>& FindScrollWidth,
                   const std::function<void(int column, int width)>& setWidth);

/// The editors over a cell. The button is `buttonSide` square; texts and numbers have none.
struct EditorPlaces {
  Box entry;
  int buttonLeft = 0;
  int buttonTop = 0;
  Box list;
};

/// `entries` is the number of entries in the list of a list row.
EditorPlaces placeEditors(PropertyKind kind, const Box& cell, const Box& grid, int sheetHeight,
                          std::size_t entries, const SheetMetrics& metrics);
/// The place of `btnReplicate` over the cell of its column.
Box replicatePlace(const Box& cell, const Box& grid, const SheetMetrics& metrics);

/// Whether a row is in sight in a grid whose first row below the heading is `topRow`.
bool rowInSight(int row, int topRow, int gridHeight, const SheetMetrics& metrics);

/// The coloured box of a swatch, which is a square with the height of its cell.
Box swatchBox(int cellHeight);

}  // namespace nimbrel
