#pragma once

#include <optional>

#include "properties/property_sheet.h"

/// Which cell the keyboard goes to from another one.
namespace nimbrel {

struct CellPlace {
  int row;
  int column;

  bool operator==(const CellPlace&) const = default;
};

enum class Step {
  Next,  ///< to the right, then down
  Previous,
  Below,  ///< in the same column, even where a row has its only cell in another one: `EnterCell` finds that
  Above,
};

/// Headings and cells that their row cannot use are passed over. None at the end of the sheet.
std::optional<CellPlace> cellAfter(const PropertySheet& sheet, CellPlace from, Step step);

}  // namespace nimbrel
