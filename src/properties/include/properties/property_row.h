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

/// The rows of the property sheets as fixed tables, one row per property. The index of a row is its
/// `PropertyOrdinal`.
namespace nimbrel {

/// The value of a property, as its element stores it.
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

/// The kind of editor of a row, the values it accepts and how it shows "not set".
struct CellEditor {
  PropertyKind Kind;
  std::span<const Choice> choices = {};
  std::string_view BlankValue = {};  ///< for all kinds but numbers, where it is 0
  std::string_view BlankText = {};
  std::int16_t MinValue = 0;
  std::int16_t MaxValue = 0;
};

/// Columns of the grid. A sheet with one value per row has only `Caption` and `Normal`.
namespace column {
inline constexpr int Caption = 0;
inline constexpr int Normal = 1;
inline constexpr int Replicate = 2;  ///< for the button; has no values
inline constexpr int MouseOver = 3;
inline constexpr int MouseClick = 4;
}  // namespace column

/// The columns with values, which are the three states of an item. The index of a column here is its slot.
inline constexpr std::array valueColumns{column::Normal, column::MouseOver, column::MouseClick};
inline constexpr std::array<std::string_view, valueColumns.size()> stateNames{"Normal", "Mouse Over",
                                                                              "Mouse Click"};
/// Returns 0 for a column without values.
constexpr std::size_t slotOf(int col) {
  return col == column::MouseOver ? 1 : col == column::MouseClick ? 2 : 0;
}

struct PropertyRow {
  std::string_view Caption;
  CellEditor editor;
  int HelpTopic = 0;
  std::string_view example = {};  ///< name of the folder and page of the live example, or empty
  std::array<std::string_view, valueColumns.size()> HelpText = {};  ///< by slot
  int OnlyColumn = 0;  ///< the only column that can be used; 0: all

  PropertyKind Kind() const { return editor.Kind; }
  /// Relative to the folder of examples; empty if the row has no example.
  std::string ExampleFile() const;
  /// A slot without its own text uses that of "Normal", with the name of its state.
  std::string helpText(int col) const;
  /// Whether the cell in this column can be edited, if the sheet has the column.
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
