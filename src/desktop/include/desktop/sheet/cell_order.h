#pragma once

#include <optional>

#include "forms/property_sheet.h"

/// The order in which the keyboard moves through the cells.
namespace nimbrel {

struct CellPlace {
  int row;
  int column;

  bool operator==(const CellPlace&) const = default;
};

enum class Step {
  Next,  ///< to the right, then down
  Previous,
  Below,  ///< in the same column, even if the row has its only cell in another one: `EnterCell` corrects that
  Above,
};

/// Skips headings and unusable cells. std::nullopt at the end of the sheet.
std::optional<CellPlace> cellAfter(const PropertySheet& sheet, CellPlace from, Step step);

}  // namespace nimbrel
