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

/// The table beside the tree in which the properties of one kind of element are edited, a cell at a time. It
/// holds a copy of the values of the element that is shown and knows no element: what the author commits
/// raises `Change`. The entry and the buttons float over the cell that is open; they are hidden otherwise.
/// Shown texts and captions are bare: whoever draws them adds a colour's swatch and an indent.
class PropertySheet : public Form {
 public:
  PropertySheet(const SheetTable& table, Ports& ports, ProgramState& state, frmLiveExamples& viewer);

  /// A row has another value now. Raised with the cell closed.
  std::function<void(int PropertyOrdinal)> Change;

  /// Values go in and out as they are, unchecked and undrawn, by ordinal and value column (see `column`).
  void SetProperty(int PropertyOrdinal, int col, PropertyValue Value);
  const PropertyValue& GetProperty(int PropertyOrdinal, int col) const;
  /// The same, but for a list value that the list lacks: the element keeps it until its own cell is committed.
  const PropertyValue& ValueToStore(int PropertyOrdinal, int col) const;
  /// Makes the texts of all cells anew. A cell that is open stays so, with what was typed.
  void RefreshPropertyValues();
  /// How often that was done: whoever draws the sheet goes to its first row then.
  std::size_t fillings() const { return fillings_; }

  const SheetTable& table() const { return table_; }
  int RowCount() const { return static_cast<int>(cells_.size()); }
  const PropertyRow& row(int PropertyOrdinal) const { return *rowAt(PropertyOrdinal).row; }
  const SharedText& Shown(int PropertyOrdinal, int col) const { return cell(PropertyOrdinal, col).shown; }
  /// Of a colour cell, as it is to be painted now.
  Swatch swatch(int PropertyOrdinal, int col) const;

  /// Opens a cell: a heading's opens the row below, one that cannot be used the one of its row that can. While
  /// a cell is open, or outside of the table, it does nothing.
  void EnterCell(int PropertyOrdinal, int col);
  /// Commits what stands in the entry and closes the cell; without an open one it does nothing.
  void LeaveCell();
  /// Closes the cell with the value that it has, whatever stands in the entry.
  void TakeBack();
  /// Whether a cell is open; `cursorRow` and `cursorColumn` are its place, or that of the last one.
  bool Editing() const { return editing_; }
  int cursorRow() const { return cursorRow_; }
  int cursorColumn() const { return cursorColumn_; }

  /// Puts a text into the entry of the open cell; in a list row only one of the list's.
  void type(std::string_view text);
  /// Takes an entry of the list that is open in place, and hides it.
  void chooseFromList(std::string_view text);
  /// Whether the author can type into the entry; a list's and a font size's are for reading.
  bool entryIsReadOnly() const;
  /// Closes lists, and hides the editors of a cell that is out of sight until it comes back; it stays open.
  void Grid_Scroll(bool cellInSight);

  void txtEntry_Click();
  void btnCombo_Click();
  void btnFile_Click();
  void btnColour_Click();
  void btnFontSize_Click();
  void btnReplicate_Click();
  void lblExamplesLink_Click();
  void lblMoreHelpLink_Click();

  /// What F1 opens: the topic of the row entered last, 0 ahead of the first.
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
    SharedText shown;
    std::optional<PropertyValue> replaced = {};  ///< by the last entry of the list, which is shown for it
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
  std::vector<ChoiceList> choices_;  ///< by row, for lists of the row's own
  std::vector<CellRules> rules_;
  std::vector<std::array<Cell, valueColumns.size()>> cells_;

  bool editing_ = false;
  int cursorRow_ = 0;
  int cursorColumn_ = column::Normal;
  int helpContextID_ = 0;
  std::size_t fillings_ = 0;
  Swatch pickedColour_;  ///< painted already in the open cell, not yet committed
};

}  // namespace nimbrel
