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

SheetGrid::SheetGrid(SheetModel& model, QWidget* parent) : QTableView(parent), sheetModel_(model) {
  setObjectName("Grid");
  setHorizontalHeader(new StateHeader(model.sheet(), this));
  setModel(&model);
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
  setColumns();
}

void SheetGrid::setDelegate(CellDelegate& delegate) {
  setItemDelegate(&delegate);
  measure();
}

void SheetGrid::setColumns() {
  auto& header = *horizontalHeader();
  header.setSectionResizeMode(QHeaderView::Fixed);
  for (const int value : valueColumns) {
    if (value < model()->columnCount()) header.setSectionResizeMode(value, QHeaderView::Stretch);
  }
}

/// Rows and the column of the small buttons follow the font.
void SheetGrid::measure() {
  const int height = sizeHintForRow(0);
  verticalHeader()->setMinimumSectionSize(height);
  verticalHeader()->setDefaultSectionSize(height);
  if (model()->columnCount() > column::Replicate) setColumnWidth(column::Replicate, height);
  widestCaption_ = sizeHintForColumn(column::Caption);
  fitCaptions();
}

/// Captions get as much as they need, but no more than the other columns.
void SheetGrid::fitCaptions() {
  const bool hasStates = sheetModel_.sheet().table().hasStates;
  const int room = viewport()->width() - (hasStates ? columnWidth(column::Replicate) : 0);
  const int columns = hasStates ? 1 + static_cast<int>(valueColumns.size()) : 2;
  setColumnWidth(column::Caption, std::min(room / columns, widestCaption_));
}

void SheetGrid::openEditors(CellPlace place) {
  openPersistentEditor(model()->index(place.row, place.column));
  if (sheetModel_.sheet().btnReplicate.visible) {
    openPersistentEditor(model()->index(place.row, column::Replicate));
  }
}

/// The table keeps the focus: otherwise it would move to the next widget when the editor is hidden.
void SheetGrid::closeEditors(CellPlace place) {
  if (viewport()->isAncestorOf(window()->focusWidget())) setFocus(Qt::OtherFocusReason);
  closePersistentEditor(model()->index(place.row, place.column));
  closePersistentEditor(model()->index(place.row, column::Replicate));
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
  fitCaptions();
}

void SheetGrid::changeEvent(QEvent* event) {
  QTableView::changeEvent(event);
  if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) measure();
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
