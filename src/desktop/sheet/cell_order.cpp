#include "desktop/sheet/cell_order.h"

namespace nimbrel {
namespace {

std::optional<CellPlace> beside(const PropertySheet& sheet, CellPlace from, int direction) {
  const int columns = sheet.table().hasStates ? static_cast<int>(valueColumns.size()) : 1;
  const int end = sheet.RowCount() * columns;
  const int start = from.row * columns + static_cast<int>(slotOf(from.column));
  for (int at = start + direction; at >= 0 && at < end; at += direction) {
    const CellPlace place{at / columns, valueColumns[static_cast<std::size_t>(at % columns)]};
    if (sheet.row(place.row).takes(place.column)) return place;
  }
  return std::nullopt;
}

std::optional<CellPlace> above(const PropertySheet& sheet, CellPlace from, int direction) {
  for (int row = from.row + direction; row >= 0 && row < sheet.RowCount(); row += direction) {
    if (sheet.row(row).Kind() != KindGroup) return CellPlace{row, from.column};
  }
  return std::nullopt;
}

}  // namespace

std::optional<CellPlace> cellAfter(const PropertySheet& sheet, CellPlace from, Step step) {
  switch (step) {
    case Step::Next: return beside(sheet, from, 1);
    case Step::Previous: return beside(sheet, from, -1);
    case Step::Below: return above(sheet, from, 1);
    case Step::Above: return above(sheet, from, -1);
  }
  return std::nullopt;
}

}  // namespace nimbrel
