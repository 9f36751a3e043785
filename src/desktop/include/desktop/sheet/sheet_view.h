#pragma once

#include <QLabel>
#include <QWidget>
#include <optional>

#include "desktop/sheet/cell_editors.h"
#include "desktop/sheet/help_panel.h"
#include "desktop/sheet/help_splitter.h"
#include "desktop/sheet/sheet_grid.h"
#include "desktop/sheet/sheet_model.h"
#include "properties/property_sheet.h"
#include "properties/sheet_geometry.h"

namespace nimbrel {

/// A property sheet on the screen. All it does is to hand on what the author does and to show what stands after
/// it.
///
/// With a cell open: Enter, Down and Up go on in its column, the tabulator to the next cell; Escape takes the
/// edit back; F4, Alt+Down, and the space bar where nothing can be typed, press the cell's button; Ctrl+R
/// replicates; Ctrl+Tab or F6 goes to the links, F6 comes back. With none open the arrows move, typing begins an edit and the
/// tabulator leaves the table. F1 helps.
class SheetView : public QWidget {
  Q_OBJECT

 public:
  /// `sheet` outlives the view.
  SheetView(PropertySheet& sheet, IconSource icons, QWidget* parent = nullptr);

  const PropertySheet& sheet() const { return sheet_; }
  /// Takes over what the sheet says now; touches only what differs.
  void refresh();

 signals:
  /// The sheet has run an action of the user, and the view has been refreshed.
  void actionFinished();
  void helpWanted(int topic);

 protected:
  void resizeEvent(QResizeEvent* event) override;
  void changeEvent(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void connectAll();
  void runAction(const Action& action);
  void leave();
  void open(CellPlace place);
  void press(int row, int col);
  void command(EntryCommand command);
  void go(Step step, int times);
  void leaveTable(bool forward);
  void goOnTyping();
  void keyForCell(QKeyEvent* event);
  void compose(QInputMethodEvent* event);
  void scrolled();
  void help();

  CellPlace lastCell() const { return {sheet_.cursorRow(), sheet_.cursorColumn()}; }
  std::optional<CellPlace> openCell() const {
    return sheet_.Editing() ? std::optional(lastCell()) : std::nullopt;
  }
  void followOpenCell();
  void measure();
  void layOut();
  void setColumns();
  void placeEditors();
  QRect listPlace() const;
  EditorPlaces editorPlaces() const;

  PropertySheet& sheet_;
  SheetModel model_;
  QLabel title_;
  SheetGrid grid_;
  HelpSplitter splitter_;
  HelpPanel help_;
  CellEditors editors_;
  SheetMetrics metrics_;
  std::optional<int> helpHeight_;  ///< twips, once the author has chosen it
  int column_ = column::Normal;    ///< in which Enter, Up and Down go on
  std::size_t fillings_ = 0;
  std::optional<CellPlace> shownCell_;  ///< the open one, as it was seen last
  bool isRunning_ = false;              ///< an action
  /// Where the author was typing as a command, such as saving, closed the cell.
  std::optional<int> caret_;
};

}  // namespace nimbrel
