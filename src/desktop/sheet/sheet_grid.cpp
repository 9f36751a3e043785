#include "desktop/sheet/sheet_grid.h"

#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <algorithm>

#include "desktop/display_text.h"

namespace nimbrel {
namespace {

bool isModifier(int key) {
  return key == Qt::Key_Shift || key == Qt::Key_Control || key == Qt::Key_Alt || key == Qt::Key_AltGr ||
         key == Qt::Key_Meta;
}

}  // namespace

SheetGrid::SheetGrid(SheetModel& model, QWidget* parent)
    : QTableView(parent), sheetModel_(model), painter_(model) {
  setObjectName("Grid");
  setHorizontalHeader(new StateHeader(model.sheet(), this));
  setModel(&model);
  setItemDelegate(&painter_);
  setAccessibleName(toDisplay(model.sheet().table().title));
  horizontalHeader()->setVisible(model.sheet().table().hasStates);
  verticalHeader()->hide();
  verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setVerticalScrollMode(ScrollPerPixel);
  setSelectionMode(NoSelection);
  setEditTriggers(NoEditTriggers);
  setTabKeyNavigation(false);  // while no cell is open, Tab leaves the table
  setCornerButtonEnabled(false);
  setWordWrap(false);
}

void SheetGrid::setRowHeight(int pixels) {
  verticalHeader()->setMinimumSectionSize(pixels);
  verticalHeader()->setDefaultSectionSize(pixels);
}

CellPlace SheetGrid::current() const { return {currentIndex().row(), currentIndex().column()}; }

void SheetGrid::goTo(CellPlace place) {
  const auto index = model()->index(place.row, place.column);
  setCurrentIndex(index);
  scrollTo(index);
}

int SheetGrid::visibleRows() const {
  return std::max(viewport()->height() / std::max(verticalHeader()->defaultSectionSize(), 1), 1);
}

void SheetGrid::mousePressEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return;
  const auto index = indexAt(event->position().toPoint());
  emit cellPressed(index.row(), index.column());
}

/// For the cell under the mouse, or for the current one.
void SheetGrid::contextMenuEvent(QContextMenuEvent* event) {
  const bool isByMouse = event->reason() == QContextMenuEvent::Mouse;
  const auto index = isByMouse ? indexAt(event->pos()) : currentIndex();
  if (!index.isValid()) return;
  if (isByMouse && (index.flags() & Qt::ItemIsSelectable) != 0) setCurrentIndex(index);
  emit menuRequested(isByMouse ? event->globalPos()
                               : viewport()->mapToGlobal(visualRect(index).bottomLeft()));
}

/// Dragging does not change the current cell.
void SheetGrid::mouseMoveEvent(QMouseEvent* event) {
  if (event->buttons() == Qt::NoButton) QTableView::mouseMoveEvent(event);
}

bool SheetGrid::isForCell(const QKeyEvent& event) const {
  if (sheetModel_.sheet().Editing()) return event.key() != Qt::Key_F1 && !isModifier(event.key());
  switch (event.key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_F2:
    case Qt::Key_F4:
    case Qt::Key_Backspace:
    case Qt::Key_Delete: return true;
    case Qt::Key_Down: return (event.modifiers() & Qt::AltModifier) != 0;
    default: break;
  }
  return !event.text().isEmpty() && event.text().front().isPrint() &&
         (event.modifiers() & (Qt::ControlModifier | Qt::AltModifier)) == 0;
}

/// Keys that the entry ignores arrive here too, and are passed on.
void SheetGrid::keyPressEvent(QKeyEvent* event) {
  if (!hasFocus()) {
    event->ignore();
  } else if (isForCell(*event)) {
    emit cellKeyPressed(event);
  } else {
    QTableView::keyPressEvent(event);
  }
}

void SheetGrid::inputMethodEvent(QInputMethodEvent* event) { emit textComposed(event); }

/// QTableView enables input methods only for cells with editors of its own.
QVariant SheetGrid::inputMethodQuery(Qt::InputMethodQuery query) const {
  return query == Qt::ImEnabled ? QVariant(true) : QTableView::inputMethodQuery(query);
}

void SheetGrid::focusInEvent(QFocusEvent* event) {
  QTableView::focusInEvent(event);
  setAttribute(Qt::WA_InputMethodEnabled);
  const auto reason = event->reason();
  if (reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason || reason == Qt::ShortcutFocusReason) {
    emit focusedByKeyboard();
  }
}

void SheetGrid::resizeEvent(QResizeEvent* event) {
  QTableView::resizeEvent(event);
  emit resized();
}

void SheetGrid::scrollContentsBy(int dx, int dy) {
  QTableView::scrollContentsBy(dx, dy);
  emit scrolled();
}

CellPlace SheetGrid::moved(CellPlace from, Step step, int times) const {
  for (int i = 0; i < times; ++i) {
    const auto next = cellAfter(sheetModel_.sheet(), from, step);
    if (!next) break;
    from = *next;
  }
  const auto& row = sheetModel_.sheet().row(from.row);
  if (row.OnlyColumn != 0) from.column = row.OnlyColumn;
  return from;
}

QModelIndex SheetGrid::moveCursor(CursorAction action, Qt::KeyboardModifiers) {
  const int all = model()->rowCount();
  auto place = current();
  switch (action) {
    case MoveDown: place = moved(place, Step::Below, 1); break;
    case MoveUp: place = moved(place, Step::Above, 1); break;
    case MoveRight:
    case MoveNext: place = moved(place, Step::Next, 1); break;
    case MoveLeft:
    case MovePrevious: place = moved(place, Step::Previous, 1); break;
    case MovePageDown: place = moved(place, Step::Below, visibleRows()); break;
    case MovePageUp: place = moved(place, Step::Above, visibleRows()); break;
    case MoveHome: place = moved(place, Step::Above, all); break;
    case MoveEnd: place = moved(place, Step::Below, all); break;
  }
  return model()->index(place.row, place.column);
}

}  // namespace nimbrel
