#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "properties/cell_text.h"
#include "properties/property_row.h"

namespace nimbrel {

/// The values of one element, or of several, in the cells of a property sheet, with their texts. Cells are given by
/// ordinal and value column (see `column`). It has a copy of the values and no access to the element.
class SheetValues {
 public:
  /// `fonts` are the installed families.
  SheetValues(const SheetTable& table, const std::vector<std::string>& fonts);

  /// Set and return values unchecked. The texts do not change before `RefreshPropertyValues`.
  void SetProperty(int PropertyOrdinal, int col, PropertyValue Value);
  const PropertyValue& GetProperty(int PropertyOrdinal, int col) const;
  /// Like `GetProperty`, but returns a value that its list does not contain as it was set: the element keeps it until
  /// that cell is committed.
  const PropertyValue& ValueToStore(int PropertyOrdinal, int col) const;
  /// Adds the value of one more element. A cell whose elements differ shows no value until it gets a new one.
  void AddProperty(int PropertyOrdinal, int col, const PropertyValue& Value);
  bool HasSeveralValues(int PropertyOrdinal, int col) const { return cell(PropertyOrdinal, col).isSeveral; }
  /// Updates the texts of all cells.
  void RefreshPropertyValues();
  /// How often the texts were updated. The view scrolls to the first row when this changes.
  std::size_t fillings() const { return fillings_; }

  const SheetTable& table() const { return table_; }
  int RowCount() const { return static_cast<int>(cells_.size()); }
  const PropertyRow& row(int PropertyOrdinal) const { return *rules(PropertyOrdinal).row; }
  const SharedText& Shown(int PropertyOrdinal, int col) const { return cell(PropertyOrdinal, col).text; }
  /// The texts of a list row, in the order of its list.
  const std::vector<SharedText>& choicesOf(int PropertyOrdinal) const {
    return rules(PropertyOrdinal).choices->DisplayTexts;
  }
  /// The fonts in alphabetical order.
  const std::vector<std::string>& sortedFonts() const { return sortedFonts_; }

  /// The value that a cell has by default, and whether it has another one now. A name has no default.
  void SetStandard(int PropertyOrdinal, int col, PropertyValue Value);
  const std::optional<PropertyValue>& Standard(int PropertyOrdinal, int col) const;
  bool IsChanged(int PropertyOrdinal, int col) const;

 protected:
  ~SheetValues() = default;

  /// Gives a cell the value of an entered text. Returns whether that changed the value.
  bool enterText(int PropertyOrdinal, int col, std::string_view text);
  /// Copies the value of "Normal" to the other states.
  void replicateNormal(int PropertyOrdinal);

 private:
  struct Cell {
    PropertyValue value;
    SharedText text;
    std::optional<PropertyValue> original = {};  ///< the value that was set, if its list does not contain it
    std::optional<PropertyValue> standard = {};  ///< the default
    bool isSeveral = false;
  };

  void prepareRows();
  const CellRules& rules(int PropertyOrdinal) const;
  const Cell& cell(int PropertyOrdinal, int col) const;
  Cell& cell(int PropertyOrdinal, int col);
  std::size_t columns() const { return table_.hasStates ? valueColumns.size() : 1; }

  const SheetTable& table_;
  ChoiceList fonts_;
  std::vector<std::string> sortedFonts_;
  std::vector<ChoiceList> choices_;  ///< by row; empty for fonts and for rows without a list
  std::vector<CellRules> rules_;
  std::vector<std::array<Cell, valueColumns.size()>> cells_;
  std::size_t fillings_ = 0;
};

}  // namespace nimbrel
