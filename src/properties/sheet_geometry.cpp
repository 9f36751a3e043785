#include "properties/sheet_geometry.h"

#include <algorithm>

namespace nimbrel {
namespace {

constexpr int shortestPart = 250;  // the minimum height of the grid and of the help
constexpr int shadowInset = 10;

bool hasButton(PropertyKind kind) { return kind != KindText && kind != KindNumber; }

/// Quirk: a list above its cell is placed as if the grid started at the top of the sheet.
Box listPlace(const Box& cell, const Box& grid, int sheetHeight, std::size_t entries,
              const SheetMetrics& metrics) {
  constexpr int tallestList = 1600;
  constexpr int spacing = 30;
  const int entryHeight = metrics.textHeight + spacing;
  constexpr std::size_t manyEntries = tallestList;  // at one twip each they fill the list
  const int height = std::min(entryHeight * static_cast<int>(std::min(entries, manyEntries)), tallestList);
  const int below = grid.top + cell.top + cell.height;
  return {cell.left, below + height > sheetHeight ? cell.top - height : below, cell.width, height};
}

}  // namespace

int initialSplitterTop(int sheetHeight, const SheetMetrics& metrics) {
  const int top = std::max(sheetHeight - 4 * metrics.helpLabelHeight - splitterHeight, shortestPart);
  return std::min(top, sheetHeight - shortestPart - splitterHeight);
}

int HelpHeight(int sheetHeight, int splitterTop) { return sheetHeight - splitterTop - splitterHeight; }

int splitterTopAfterResize(int sheetHeight, int helpHeight, const SheetMetrics& metrics) {
  constexpr int shortestGrid = 100;
  const int top =
      std::min(sheetHeight - helpHeight - splitterHeight, sheetHeight - shortestPart - splitterHeight);
  return std::max(top, metrics.titleHeight + shortestGrid);
}

int draggedSplitterTop(int barTop, int pointerOffset, int sheetHeight) {
  constexpr int margin = 300;
  return std::min(std::max(barTop + pointerOffset, margin), sheetHeight - margin);
}

SheetLayout LayoutSheet(int width, int height, int splitterTop, const SheetMetrics& metrics) {
  constexpr int labelMargin = 60;
  constexpr int exampleMargin = 150;
  constexpr int helpMargin = 350;
  SheetLayout layout;
  layout.imgSplitter = {0, splitterTop, width, splitterHeight};
  layout.picSplitter = {0, splitterTop + shadowInset, width, splitterHeight - 2 * shadowInset};
  layout.lblTitle = {0, 0, width, metrics.titleHeight};
  layout.Grid = {0, metrics.titleHeight, width, splitterTop - metrics.titleHeight};
  const int help = HelpHeight(height, splitterTop);
  layout.HelpPanel = {0, splitterTop + splitterHeight, width, help};
  layout.HelpLabel1 = {0, 0, width - labelMargin, metrics.helpLabelHeight};
  layout.HelpLabel2 = {0, metrics.helpLabelHeight, width - labelMargin, help};
  layout.lblExamplesLinkRight = width - exampleMargin;
  layout.lblMoreHelpLinkRight = width - helpMargin - metrics.exampleLinkWidth;
  return layout;
}

Box draggingShadow(const Box& imgSplitter) {
  return {imgSplitter.left, imgSplitter.top, imgSplitter.width - 2 * shadowInset, imgSplitter.height / 2};
}

void layoutColumns(bool hasStates, int gridWidth, const SheetMetrics& metrics,
                   const std::function<int()>& FindScrollWidth,
                   const std::function<void(int column, int width)>& setWidth) {
  const int whole = gridWidth - 6 * metrics.pixelWidth;
  if (!hasStates) {
    const int caption = std::min(whole / 2, metrics.CaptionWidth());
    setWidth(column::Caption, caption);
    setWidth(column::Normal, whole - caption - FindScrollWidth());
    return;
  }
  const int button = metrics.buttonSide();
  const int caption = std::min((whole - FindScrollWidth() - button) / 4, metrics.CaptionWidth());
  setWidth(column::Caption, caption);
  const int normal = (whole - caption - FindScrollWidth() - button) / 3;
  setWidth(column::Normal, normal);
  setWidth(column::Replicate, button);
  const int over = (whole - caption - FindScrollWidth() - button) / 3;
  setWidth(column::MouseOver, over);
  setWidth(column::MouseClick, whole - caption - normal - button - over - FindScrollWidth());
}

EditorPlaces placeEditors(PropertyKind kind, const Box& cell, const Box& grid, int sheetHeight,
                          std::size_t entries, const SheetMetrics& metrics) {
  const int inX = 3 * metrics.pixelWidth;
  const int inY = 3 * metrics.pixelHeight;
  const int button = metrics.buttonSide();
  EditorPlaces places;
  places.entry = {cell.left + inX, grid.top + cell.top + inY, std::max(cell.width - inX, button + 1),
                  cell.height - inY};
  places.buttonLeft = cell.left + cell.width - metrics.pixelWidth;
  places.buttonTop = grid.top + cell.top - metrics.pixelHeight;
  if (hasButton(kind)) {
    places.entry.width -= button;
    places.buttonLeft -= button;
  }
  if (kind == KindColour) {
    places.entry.left += metrics.swatchWidth;
    places.entry.width = std::max(places.entry.width - metrics.swatchWidth, 0);
  }
  places.list = listPlace(cell, grid, sheetHeight, entries, metrics);
  return places;
}

Box replicatePlace(const Box& cell, const Box& grid, const SheetMetrics& metrics) {
  const int side = metrics.buttonSide();
  return {cell.left - metrics.pixelWidth, grid.top + cell.top - metrics.pixelHeight, side, side};
}

bool rowInSight(int row, int topRow, int gridHeight, const SheetMetrics& metrics) {
  const int rows = gridHeight / (2 * metrics.pixelHeight + metrics.StandardCellHeight);
  return row >= topRow && row < topRow + rows - 1;
}

Box swatchBox(int cellHeight) {
  constexpr int inset = 20;
  return {inset, inset, cellHeight - 2 * inset, cellHeight - 2 * inset};
}

}  // namespace nimbrel
