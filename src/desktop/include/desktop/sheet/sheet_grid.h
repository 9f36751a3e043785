#pragma once

#include <QTableView>

#include "desktop/sheet/cell_delegate.h"
#include "desktop/sheet/cell_order.h"
#include "desktop/sheet/sheet_model.h"

namespace nimbrel {

/// The table of a sheet. It has a current cell, but when to open one is for the sheet to decide.
class SheetGrid : public QTableView {
  Q_OBJECT

 public:
  SheetGrid(SheetModel& model, QWidget* parent);

  void setDelegate(CellDelegate& delegate);

  CellPlace current() const;
  /// Makes a cell the current one and scrolls to it.
  void goTo(CellPlace place);
  /// Put the editors over the cell that the sheet has opened, and take them away.
  void openEditors(CellPlace place);
  void closeEditors(CellPlace place);
  /// In coordinates of the viewport, visible or not.
  QRect placeOf(CellPlace place) const { return visualRect(model()->index(place.row, place.column)); }
  bool isCellVisible(CellPlace place) const { return viewport()->rect().intersects(placeOf(place)); }
  int visibleRows() const;

 signals:
  /// -1 for both if no cell was hit.
  void cellPressed(int row, int col);
  /// A key for the entry of the current cell, or one that opens that cell.
  void cellKeyPressed(QKeyEvent* event);
  /// Text from an input method, which opens the current cell as a key does.
  void textComposed(QInputMethodEvent* event);
  void focusedByKeyboard();
  void menuRequested(const QPoint& globalPosition);
  void scrolled();

 protected:
  void mousePressEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override { mousePressEvent(event); }
  void mouseMoveEvent(QMouseEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void inputMethodEvent(QInputMethodEvent* event) override;
  QVariant inputMethodQuery(Qt::InputMethodQuery query) const override;
  void focusInEvent(QFocusEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void changeEvent(QEvent* event) override;
  void scrollContentsBy(int dx, int dy) override;
  QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;

 private:
  void setColumns();
  void measure();
  void fitCaptions();
  bool isForCell(const QKeyEvent& event) const;
  CellPlace moved(CellPlace from, Step step, int times) const;

  const SheetModel& sheetModel_;
  int widestCaption_ = 0;  ///< pixels
};

}  // namespace nimbrel
