#include "desktop/sheet/cell_order.h"

namespace nimbrel {
namespace {

std::optional<CellPlace> inReadingOrder(const PropertySheet& sheet, CellPlace from, int direction) {
  const int cellsPerRow = sheet.table().hasStates ? static_cast<int>(valueColumns.size()) : 1;
  const int end = sheet.RowCount() * cellsPerRow;
  const int start = from.row * cellsPerRow + static_cast<int>(slotOf(from.column));
  for (int at = start + direction; at >= 0 && at < end; at += direction) {
    const CellPlace place{at / cellsPerRow, valueColumns[static_cast<std::size_t>(at % cellsPerRow)]};
    if (sheet.row(place.row).takes(place.column)) return place;
  }
  return std::nullopt;
}

std::optional<CellPlace> inColumn(const PropertySheet& sheet, CellPlace from, int direction) {
  for (int row = from.row + direction; row >= 0 && row < sheet.RowCount(); row += direction) {
    if (sheet.row(row).Kind() != KindGroup) return CellPlace{row, from.column};
  }
  return std::nullopt;
}

}  // namespace

std::optional<CellPlace> cellAfter(const PropertySheet& sheet, CellPlace from, Step step) {
  switch (step) {
    case Step::Next: return inReadingOrder(sheet, from, 1);
    case Step::Previous: return inReadingOrder(sheet, from, -1);
    case Step::Below: return inColumn(sheet, from, 1);
    case Step::Above: return inColumn(sheet, from, -1);
  }
  return std::nullopt;
}

}  // namespace nimbrel
