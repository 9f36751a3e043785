#pragma once

#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

#include "properties/property_row.h"

/// What a cell says for a value, and what value its entry stands for.
namespace nimbrel {

/// The choices of a list row, ready for use.
struct ChoiceList {
  std::vector<PropertyValue> StoredValues;
  std::vector<SharedText> DisplayTexts;
};

/// What a row of the table needs at hand for each cell.
struct CellRules {
  const PropertyRow* row;
  PropertyValue BlankValue;
  SharedText BlankText;
  const ChoiceList* choices;  ///< of a list row
};

/// Equal as texts, or as numbers of whatever type.
bool sameValue(const PropertyValue& a, const PropertyValue& b);

/// The text for a value. kept: a list value that the list lacks becomes the last entry, in `value` too; its
/// element has it until the cell is left with another.
SharedText FormatCellText(const CellRules& rules, PropertyValue& value);

/// The value for an entry; what does not fit is quietly replaced, and an entry that a list lacks leaves `old`.
PropertyValue ParseCellText(const CellRules& rules, std::string_view text, const PropertyValue& old);

/// The number at a text's start: blanks are skipped, the first character that does not fit ends it, nothing
/// is 0.
double Val(std::string_view text);

/// The small picture in a cell of a colour: that colour, or the mark of none.
struct Rgb {
  std::uint8_t red = 0;
  std::uint8_t green = 0;
  std::uint8_t blue = 0;

  bool operator==(const Rgb&) const = default;
  /// As one number, blue in the high byte and red in the low one.
  constexpr std::uint32_t number() const {
    constexpr unsigned byte = 8;
    return static_cast<std::uint32_t>(blue) << 2 * byte | static_cast<std::uint32_t>(green) << byte | red;
  }
};
using Swatch = std::optional<Rgb>;

/// What fills the swatch of no colour, behind a downward diagonal hatch.
inline constexpr Rgb noColourFill{0xC0, 0xE1, 0xE4};

/// The swatch of a value "#RRGGBB"; what is no digit ends its pair, the blank value has no colour.
Swatch swatchOf(std::string_view value);

/// "#RRGGBB" for a number with blue in the high byte and red in the low one.
std::string colourText(std::uint32_t colour);

}  // namespace nimbrel
