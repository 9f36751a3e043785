#pragma once

#include <QLabel>
#include <QWidget>
#include <optional>

#include "desktop/pane_splitter.h"
#include "desktop/sheet/cell_delegate.h"
#include "desktop/sheet/help_panel.h"
#include "desktop/sheet/sheet_grid.h"
#include "desktop/sheet/sheet_model.h"
#include "forms/property_sheet.h"

namespace nimbrel {

/// A property sheet on the screen. It passes the user's actions on to the sheet and shows the state that results.
///
/// Keys while a cell is open: Enter, Down and Up move within the column, Tab to the next cell; Escape cancels the
/// edit; F4 and Alt+Down click the cell's button, as does the space bar in a read-only cell; Ctrl+R replicates;
/// Ctrl+Tab and F6 move to the links, F6 moves back. While none is open: the arrow keys move, typing opens the current
/// cell, Tab leaves the table. F1 always opens the help.
class SheetView : public QWidget {
  Q_OBJECT

 public:
  /// `sheet` outlives the view.
  SheetView(PropertySheet& sheet, IconSource icons, QWidget* parent = nullptr);

  const PropertySheet& sheet() const { return sheet_; }
  /// Updates the view from the sheet, only where they differ.
  void refresh();

 signals:
  /// The sheet has run an action of the user, and the view has been refreshed.
  void actionFinished();
  /// For the current cell.
  void menuRequested(const QPoint& globalPosition);
  void helpRequested(int topic);

 protected:
  void resizeEvent(QResizeEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void layOut();
  void connectAll();
  void runAction(const Action& action);
  void leaveCell();
  void open(CellPlace place);
  void press(int row, int col);
  void command(EntryCommand command);
  void go(Step step, int times);
  void leaveTable(bool forward);
  void continueTyping();
  void cellKeyPressed(QKeyEvent* event);
  void compose(QInputMethodEvent* event);
  void scrolled();
  void help();

  CellPlace lastCell() const { return {sheet_.cursorRow(), sheet_.cursorColumn()}; }
  std::optional<CellPlace> openCell() const {
    return sheet_.Editing() ? std::optional(lastCell()) : std::nullopt;
  }
  void followOpenCell();

  PropertySheet& sheet_;
  SheetModel model_;
  QLabel title_;
  PaneSplitter splitter_;
  SheetGrid grid_;
  HelpPanel help_;
  OpenCellEditor editor_;
  CellDelegate delegate_;
  int column_ = column::Normal;  ///< that Enter, Up and Down stay in
  std::size_t fillings_ = 0;
  std::size_t shownCells_ = 0;             ///< `shownCells` of the sheet at the last refresh
  std::optional<CellPlace> lastOpenCell_;  ///< the open cell at the last refresh
  bool isRunning_ = false;                 ///< an action
  /// The cursor position when a command such as Save closed the cell.
  std::optional<int> caret_;
};

}  // namespace nimbrel
