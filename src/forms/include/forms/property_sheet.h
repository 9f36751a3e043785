#pragma once

#include <array>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "forms/form.h"
#include "forms/live_examples.h"
#include "platform/ports.h"
#include "properties/cell_text.h"
#include "properties/sheet_values.h"

namespace nimbrel {

/// What a sheet uses of its surroundings. Borrowed.
struct SheetPorts {
  Asker& asker;
  HelpSystem& help;
  const std::vector<std::string>& fonts;  ///< installed families
  const std::string& menuFolder;          ///< where file dialogs start: that of the open menu file
  std::string& tmpFontSize;               ///< the size that the font size form edits
};

/// The table for editing the properties of one kind of element, one cell at a time. A commit raises `Change`. The entry and
/// the buttons lie over the open cell, and are hidden while none is open. The view adds the swatches of colours and the indent of captions.
class PropertySheet : public Form, public SheetValues {
 public:
  PropertySheet(const SheetTable& table, const SheetPorts& ports, frmLiveExamples& viewer);

  /// Raised after the value of a row has changed and its cell is closed.
  std::function<void(int PropertyOrdinal)> Change;

  /// The swatch to paint in a colour cell.
  Swatch swatch(int PropertyOrdinal, int col) const;

  /// Opens a cell. A heading opens the row below, and an unusable cell the usable one of its row. Does nothing while
  /// a cell is open, or outside the table.
  void EnterCell(int PropertyOrdinal, int col);
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
  void bind();
  const PropertyRow& openRow() const { return row(cursorRow_); }
  bool isListRow() const;
  bool edits(PropertyKind kind) const { return editing_ && openRow().Kind() == kind; }
  Control& list() { return openRow().Kind() == KindSortedList ? lstSortedList : lstList; }
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

  SheetPorts ports_;
  frmLiveExamples& viewer_;

  bool editing_ = false;
  int cursorRow_ = 0;
  int cursorColumn_ = column::Normal;
  int helpContextID_ = 0;
  std::size_t shownCells_ = 0;
  Swatch pickedColour_;  ///< chosen for the open cell and painted there, but not yet committed
};

}  // namespace nimbrel
