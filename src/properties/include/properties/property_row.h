#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "text/shared_text.h"

/// The rows that the property sheets are made of, as fixed tables: one row a property, its number in the table
/// being the `PropertyOrdinal`.
namespace nimbrel {

/// A property's value as its element stores it.
using PropertyValue = std::variant<SharedText, std::uint8_t, float>;

/// How a row is edited.
enum PropertyKind : std::uint8_t {
  KindText,
  KindNumber,
  KindFile,
  KindFontSize,
  KindColour,
  KindList,
  KindSortedList,  ///< the fonts, generic ones first
  KindGroup,       ///< a heading, without a value
};

/// An entry of a list row. One without a stored number stores its text.
struct Choice {
  static constexpr int itself = -1;

  int StoredValue;
  std::string_view DisplayText;
};

/// What a row takes and how it shows "not set".
struct Editor {
  PropertyKind Kind;
  std::span<const Choice> choices = {};
  std::string_view BlankValue = {};  ///< of all but numbers, where it is 0
  std::string_view BlankText = {};
  std::int16_t MinValue = 0;
  std::int16_t MaxValue = 0;
};

/// Columns of a sheet's grid. A sheet of one value a row has `Caption` and `Normal` alone.
namespace column {
inline constexpr int Caption = 0;
inline constexpr int Normal = 1;
inline constexpr int Replicate = 2;  ///< room for the button, never a value
inline constexpr int MouseOver = 3;
inline constexpr int MouseClick = 4;
}  // namespace column

/// The columns that hold values, the three states of an item. Where a value stands in this order is its slot.
inline constexpr std::array valueColumns{column::Normal, column::MouseOver, column::MouseClick};
inline constexpr std::array<std::string_view, valueColumns.size()> stateNames{"Normal", "Mouse Over",
                                                                              "Mouse Click"};
/// A column without values counts as the first.
constexpr std::size_t slotOf(int col) {
  return col == column::MouseOver ? 1 : col == column::MouseClick ? 2 : 0;
}

struct PropertyRow {
  std::string_view Caption;
  Editor editor;
  int HelpTopic = 0;
  std::string_view example =
      {};  ///< folder and page of the live example bear this name; empty: there is none
  std::array<std::string_view, valueColumns.size()> HelpText = {};  ///< by slot
  int OnlyColumn = 0;  ///< the one column that can be used, 0: all

  PropertyKind Kind() const { return editor.Kind; }
  /// Relative to the folder of examples, empty if there is none.
  std::string ExampleFile() const;
  /// A slot of an item without a text of its own says that of "Normal", with its own state's name.
  std::string helpText(int col) const;
  /// Whether an author can enter the cell, on a sheet that has the column.
  bool takes(int col) const {
    return Kind() != KindGroup && (OnlyColumn == 0 || OnlyColumn == valueColumns[slotOf(col)]);
  }
};

/// One of the three sheets.
struct SheetTable {
  std::string_view name;
  std::string_view title;
  bool hasStates;  ///< three value columns, else one
  std::vector<const PropertyRow*> rows;
};

const SheetTable& menuTable();
const SheetTable& submenuTable();
const SheetTable& itemTable();

}  // namespace nimbrel
