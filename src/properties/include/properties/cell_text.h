#pragma once

#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

#include "properties/property_row.h"

/// Conversion between the value of a cell and its text.
namespace nimbrel {

/// The entries of a list row.
struct ChoiceList {
  std::vector<PropertyValue> StoredValues;
  std::vector<SharedText> DisplayTexts;
};

/// A row of the table, prepared for converting its cells.
struct CellRules {
  const PropertyRow* row;
  PropertyValue BlankValue;
  SharedText BlankText;
  const ChoiceList* choices;  ///< of a list row
};

/// Whether both are the same text, or the same number of any type.
bool sameValue(const PropertyValue& a, const PropertyValue& b);

/// Returns the text for a value. Quirk: a value that its list does not contain becomes the last entry, in `value`
/// too; the element keeps its own until the cell is left with another.
SharedText FormatCellText(const CellRules& rules, PropertyValue& value);

/// Returns the value for an entered text. Invalid text is corrected silently; for a text that is not in its list
/// the result is `old`.
PropertyValue ParseCellText(const CellRules& rules, std::string_view text, const PropertyValue& old);

/// Parses the number at the start of a text. Leading blanks are skipped; a text that starts with no number is 0.
double Val(std::string_view text);

/// The small picture in a colour cell: its colour, or std::nullopt for "no colour".
struct Rgb {
  std::uint8_t red = 0;
  std::uint8_t green = 0;
  std::uint8_t blue = 0;

  bool operator==(const Rgb&) const = default;
  /// 0xBBGGRR.
  constexpr std::uint32_t number() const {
    constexpr unsigned byte = 8;
    return static_cast<std::uint32_t>(blue) << 2 * byte | static_cast<std::uint32_t>(green) << byte | red;
  }
};
using Swatch = std::optional<Rgb>;

/// The background of the "no colour" swatch, which has a downward diagonal hatch.
inline constexpr Rgb noColourFill{0xC0, 0xE1, 0xE4};

/// The swatch of a value "#RRGGBB". A character that is not a hexadecimal digit ends its pair. The blank value has
/// no colour.
Swatch swatchOf(std::string_view value);

/// "#RRGGBB" for a number 0xBBGGRR.
std::string colourText(std::uint32_t colour);

}  // namespace nimbrel
