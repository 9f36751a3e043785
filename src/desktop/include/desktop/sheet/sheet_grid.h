#pragma once

#include <QTableView>

#include "desktop/sheet/cell_order.h"
#include "desktop/sheet/cell_painter.h"
#include "desktop/sheet/sheet_model.h"

namespace nimbrel {

/// The table of a sheet. It marks one cell as current and opens none itself.
class SheetGrid : public QTableView {
  Q_OBJECT

 public:
  SheetGrid(SheetModel& model, QWidget* parent);

  void setRowHeight(int pixels);
  CellPlace current() const;
  /// Makes a cell the current one and brings it into view.
  void goTo(CellPlace place);
  /// Where a cell is in the viewport, seen or not.
  QRect placeOf(CellPlace place) const { return visualRect(model()->index(place.row, place.column)); }
  bool isInSight(CellPlace place) const { return viewport()->rect().intersects(placeOf(place)); }
  int rowsInSight() const;

 signals:
  /// -1 for either: beside the cells.
  void pressed(int row, int col);
  /// A key that is for the current cell's entry, or begins its edit.
  void keyForCell(QKeyEvent* event);
  /// Text of an input method, which begins an edit as a key does.
  void composed(QInputMethodEvent* event);
  void reachedByKeyboard();
  void scrolled();
  void resized();

 protected:
  void mousePressEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override { mousePressEvent(event); }
  void mouseMoveEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void inputMethodEvent(QInputMethodEvent* event) override;
  QVariant inputMethodQuery(Qt::InputMethodQuery query) const override;
  void focusInEvent(QFocusEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void scrollContentsBy(int dx, int dy) override;
  QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;

 private:
  bool isForCell(const QKeyEvent& event) const;
  CellPlace moved(CellPlace from, Step step, int times) const;

  const SheetModel& sheetModel_;
  CellPainter painter_;
};

}  // namespace nimbrel
