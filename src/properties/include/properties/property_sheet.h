#pragma once

#include <array>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/form.h"
#include "platform/ports.h"
#include "platform/program_state.h"
#include "properties/cell_text.h"
#include "properties/live_examples.h"
#include "properties/property_row.h"

namespace nimbrel {

/// The table for editing the properties of one kind of element, one cell at a time. It has a copy of the values and
/// no access to the element: a commit raises `Change`. The entry and the buttons lie over the open cell, and are
/// hidden while none is open. The view adds the swatches of colours and the indent of captions.
class PropertySheet : public Form {
 public:
  PropertySheet(const SheetTable& table, Ports& ports, ProgramState& state, frmLiveExamples& viewer);

  /// Raised after the value of a row has changed and its cell is closed.
  std::function<void(int PropertyOrdinal)> Change;

  /// Set and return values unchecked, by ordinal and value column (see `column`). The texts do not change before
  /// `RefreshPropertyValues`.
  void SetProperty(int PropertyOrdinal, int col, PropertyValue Value);
  const PropertyValue& GetProperty(int PropertyOrdinal, int col) const;
  /// Like `GetProperty`, but returns a value that its list does not contain as it was set: the element keeps it until
  /// that cell is committed.
  const PropertyValue& ValueToStore(int PropertyOrdinal, int col) const;
  /// Updates the texts of all cells. An open cell stays open and keeps its entry.
  void RefreshPropertyValues();
  /// How often the texts were updated. The view scrolls to the first row when this changes.
  std::size_t fillings() const { return fillings_; }

  const SheetTable& table() const { return table_; }
  int RowCount() const { return static_cast<int>(cells_.size()); }
  const PropertyRow& row(int PropertyOrdinal) const { return *rowAt(PropertyOrdinal).row; }
  const SharedText& Shown(int PropertyOrdinal, int col) const { return cell(PropertyOrdinal, col).text; }
  /// The swatch to paint in a colour cell.
  Swatch swatch(int PropertyOrdinal, int col) const;

  /// Opens a cell. A heading opens the row below, and an unusable cell the usable one of its row. Does nothing while
  /// a cell is open, or outside the table.
  void EnterCell(int PropertyOrdinal, int col);
  /// The value that a cell has by default, and whether it has another one now. A name has no default.
  void SetStandard(int PropertyOrdinal, int col, PropertyValue Value);
  const std::optional<PropertyValue>& Standard(int PropertyOrdinal, int col) const;
  bool IsChanged(int PropertyOrdinal, int col) const;

  /// Make a cell the current one without opening it. Do nothing while a cell is open. After `ShowCell` the view also
  /// scrolls to it, each time `shownCells` changes.
  void SetCursor(int PropertyOrdinal, int col);
  void ShowCell(int PropertyOrdinal, int col);
  std::size_t shownCells() const { return shownCells_; }
  /// Commits the entry and closes the cell. Does nothing if no cell is open.
  void LeaveCell();
  /// Closes the cell and discards the entry.
  void TakeBack();
  /// Whether a cell is open. `cursorRow` and `cursorColumn` are those of the open cell, or of the last one.
  bool Editing() const { return editing_; }
  int cursorRow() const { return cursorRow_; }
  int cursorColumn() const { return cursorColumn_; }

  /// Sets the entry of the open cell. A list row accepts only the texts of its list.
  void type(std::string_view text);
  /// Sets the entry to a text of the open list, and closes the list.
  void chooseFromList(std::string_view text);
  /// Whether the entry accepts no typing, as in lists and font sizes.
  bool entryIsReadOnly() const;
  /// Closes lists, and hides the editors while the open cell is out of sight. The cell stays open.
  void Grid_Scroll(bool cellInSight);

  void txtEntry_Click();
  void btnCombo_Click();
  void btnFile_Click();
  void btnColour_Click();
  void btnFontSize_Click();
  void btnReplicate_Click();
  void lblExamplesLink_Click();
  void lblMoreHelpLink_Click();

  /// The help topic of the row entered last, or 0 before the first.
  int HelpContextID() const { return helpContextID_; }

  Control lblTitle{*this, "lblTitle", ControlKind::Label};
  Control HelpLabel1{*this, "HelpLabel1", ControlKind::Label};
  Control HelpLabel2{*this, "HelpLabel2", ControlKind::Label};
  Control lblMoreHelpLink{*this, "lblMoreHelpLink", ControlKind::Label, "More Help"};
  Control lblExamplesLink{*this, "lblExamplesLink", ControlKind::Label, "Live Example"};
  Control txtEntry{*this, "txtEntry", ControlKind::Text};
  Control btnCombo{*this, "btnCombo", ControlKind::Button};
  Control btnFile{*this, "btnFile", ControlKind::Button};
  Control btnColour{*this, "btnColour", ControlKind::Button};
  Control btnFontSize{*this, "btnFontSize", ControlKind::Button};
  Control btnReplicate{*this, "btnReplicate", ControlKind::Button};
  Control lstList{*this, "lstList", ControlKind::List};
  Control lstSortedList{*this, "lstSortedList", ControlKind::List};

 private:
  struct Cell {
    PropertyValue value;
    SharedText text;
    std::optional<PropertyValue> original = {};  ///< the value that was set, if its list does not contain it
    std::optional<PropertyValue> standard = {};  ///< the default
  };

  void bind();
  void prepareRows();
  const CellRules& rowAt(int PropertyOrdinal) const;
  const Cell& cell(int PropertyOrdinal, int col) const;
  Cell& cell(int PropertyOrdinal, int col);
  const CellRules& openRow() const { return rowAt(cursorRow_); }
  std::size_t columns() const { return table_.hasStates ? valueColumns.size() : 1; }
  bool isListRow() const;
  bool edits(PropertyKind kind) const { return editing_ && openRow().row->Kind() == kind; }
  Control& list() { return openRow().row->Kind() == KindSortedList ? lstSortedList : lstList; }
  struct Place {
    int row;
    int column;
  };
  Place place() const { return {cursorRow_, cursorColumn_}; }
  void enter(Place open, std::string_view text);
  void fillList();
  void showEditors();
  void hideEditors();
  void showHelp();

  const SheetTable& table_;
  Ports& ports_;
  ProgramState& state_;
  frmLiveExamples& viewer_;

  ChoiceList fonts_;
  std::vector<ChoiceList> choices_;  ///< by row; empty for fonts and for rows without a list
  std::vector<CellRules> rules_;
  std::vector<std::array<Cell, valueColumns.size()>> cells_;

  bool editing_ = false;
  int cursorRow_ = 0;
  int cursorColumn_ = column::Normal;
  int helpContextID_ = 0;
  std::size_t fillings_ = 0;
  std::size_t shownCells_ = 0;
  Swatch pickedColour_;  ///< chosen for the open cell and painted there, but not yet committed
};

}  // namespace nimbrel
