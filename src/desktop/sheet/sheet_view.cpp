#include "desktop/sheet/sheet_view.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QScrollBar>
#include <algorithm>

#include "desktop/display_text.h"
#include "desktop/twips.h"

namespace nimbrel {
SheetView::SheetView(PropertySheet& sheet, IconSource icons, QWidget* parent)
    : QWidget(parent),
      sheet_(sheet),
      model_(sheet),
      title_(this),
      grid_(model_, this),
      splitter_(this),
      help_(
          sheet, [this](const Action& action) { runAction(action); }, this),
      editors_(sheet, *grid_.viewport(), std::move(icons),
               [this](const Action& action) { runAction(action); }) {
  setObjectName(toDisplay(sheet.name));
  title_.setObjectName(toDisplay(sheet.lblTitle.name));
  title_.setTextFormat(Qt::PlainText);
  title_.setText(toDisplay(sheet.lblTitle.text));
  title_.setMargin(3);
  title_.setBuddy(&grid_);
  setFocusProxy(&grid_);
  setMinimumSize(toPixels(smallestSheet), toPixels(smallestSheet));
  measure();
  connectAll();
  refresh();
  grid_.goTo(cellAfter(sheet, {-1, column::Normal}, Step::Below).value_or(lastCell()));
}

void SheetView::connectAll() {
  connect(&grid_, &SheetGrid::cellPressed, this, &SheetView::press);
  connect(&grid_, &SheetGrid::cellKeyPressed, this, &SheetView::cellKeyPressed);
  connect(&grid_, &SheetGrid::textComposed, this, &SheetView::compose);
  connect(&grid_, &SheetGrid::focusedByKeyboard, this, [this] { open(grid_.current()); });
  connect(&grid_, &SheetGrid::scrolled, this, &SheetView::scrolled);
  connect(&grid_, &SheetGrid::menuRequested, this, [this](const QPoint& place) {
    leaveCell();
    emit menuRequested(place);
  });
  connect(grid_.selectionModel(), &QItemSelectionModel::currentChanged, this,
          [this](const QModelIndex& current) { sheet_.SetCursor(current.row(), current.column()); });
  connect(&grid_, &SheetGrid::resized, this, &SheetView::setColumns);
  connect(&editors_.entry(), &EntryEdit::commandRequested, this, &SheetView::command);
  connect(&editors_.list(), &ListPopup::helpRequested, this, &SheetView::help);
  connect(&splitter_, &HelpSplitter::dragStarted, this, &SheetView::leaveCell);
  connect(&splitter_, &HelpSplitter::moved, this, [this](int top) {
    helpHeight_ = HelpHeight(toTwips(height()), top);
    layOut();
  });
}

void SheetView::runAction(const Action& action) {
  const bool isNested = std::exchange(isRunning_, true);  // in the event loop of a chooser
  const auto finish = [&] {
    isRunning_ = isNested;
    emit actionFinished();
  };
  nimbrel::runAction(action, {[this] { refresh(); }, finish});
}

void SheetView::refresh() {
  auto& entry = editors_.entry();
  if (!sheet_.Editing() && !isRunning_ && entry.hasFocus()) caret_ = entry.cursorPosition();
  model_.sync();
  if (std::exchange(fillings_, sheet_.fillings()) != sheet_.fillings() && !sheet_.Editing()) {
    grid_.scrollToTop();
    caret_.reset();
  }
  if (std::exchange(shownCells_, sheet_.shownCells()) != sheet_.shownCells() && !sheet_.Editing())
    grid_.goTo(lastCell());
  // The links are hidden when the cell is closed.
  if (!sheet_.Editing() && help_.isAncestorOf(window()->focusWidget())) grid_.setFocus(Qt::OtherFocusReason);
  help_.refresh();
  followOpenCell();
  if (sheet_.Editing()) placeEditors();
  editors_.refresh(model_.nameOf(sheet_.cursorRow(), sheet_.cursorColumn()), listPlace());
}

/// An action may open another cell: replicating moves to the first state.
void SheetView::followOpenCell() {
  const auto open = openCell();
  const auto before = std::exchange(lastOpenCell_, open);
  if (!open || open == before) return;
  editors_.begin();
  if (grid_.current() != *open) grid_.goTo(*open);
  if (before && before->row == open->row) column_ = open->column;
}

void SheetView::leaveCell() {
  endComposing();
  if (sheet_.Editing()) runAction([this] { sheet_.LeaveCell(); });
}

/// Commits the open cell first.
void SheetView::open(CellPlace place) {
  endComposing();
  caret_.reset();
  runAction([&] {
    sheet_.LeaveCell();
    sheet_.EnterCell(place.row, place.column);
  });
  if (sheet_.Editing()) editors_.focusEntry();
}

void SheetView::press(int row, int col) {
  grid_.setFocus(Qt::MouseFocusReason);
  if (row < 0 || col < 0) {
    leaveCell();
  } else if (model_.isOpen(row, col)) {
    editors_.focusEntry();
  } else {
    open({row, col});
    column_ = sheet_.cursorColumn();
  }
}

void SheetView::command(EntryCommand command) {
  switch (command) {
    case EntryCommand::Next: go(Step::Next, 1); break;
    case EntryCommand::Previous: go(Step::Previous, 1); break;
    case EntryCommand::Below: go(Step::Below, 1); break;
    case EntryCommand::Above: go(Step::Above, 1); break;
    case EntryCommand::PageDown: go(Step::Below, grid_.visibleRows()); break;
    case EntryCommand::PageUp: go(Step::Above, grid_.visibleRows()); break;
    case EntryCommand::TakeBack: runAction([this] { sheet_.TakeBack(); }); break;
    case EntryCommand::PressButton: editors_.pressButton(); break;
    case EntryCommand::Replicate:
      runAction([this] { sheet_.click(sheet_.btnReplicate); });
      editors_.focusEntry();
      break;
    case EntryCommand::GoToLinks: help_.focusLinks(); break;
  }
}

void SheetView::go(Step step, int times) {
  const bool isAlong = step == Step::Next || step == Step::Previous;
  auto from = lastCell();
  if (!isAlong) from.column = column_;
  std::optional<CellPlace> to;
  for (auto next = cellAfter(sheet_, from, step); next && times > 0; --times) {
    to = next;
    next = cellAfter(sheet_, *next, step);
  }
  if (to) {
    open(*to);
    if (isAlong) column_ = sheet_.cursorColumn();
  } else if (isAlong) {
    leaveTable(step == Step::Next);
  } else {
    leaveCell();
  }
}

void SheetView::leaveTable(bool forward) {
  leaveCell();
  grid_.setFocus(Qt::OtherFocusReason);
  focusNextPrevChild(forward);
}

/// Scrolls back to an open cell. Opens one again that a command has closed, with the cursor where it was.
void SheetView::continueTyping() {
  if (sheet_.Editing()) {
    grid_.goTo(lastCell());
    editors_.entry().setFocus(Qt::OtherFocusReason);
  } else {
    const auto caret = std::exchange(caret_, std::nullopt);
    open(grid_.current());
    column_ = sheet_.cursorColumn();
    if (caret) editors_.entry().setCursorPosition(*caret);
  }
}

void SheetView::cellKeyPressed(QKeyEvent* event) {
  const bool wasOpen = sheet_.Editing();
  continueTyping();
  const int key = event->key();
  const bool onlyOpens = key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_F2;
  auto& entry = editors_.entry();
  if (entry.hasFocus() && (wasOpen || !onlyOpens)) QCoreApplication::sendEvent(&entry, event);
}

void SheetView::compose(QInputMethodEvent* event) {
  continueTyping();
  auto& entry = editors_.entry();
  if (entry.hasFocus()) QCoreApplication::sendEvent(&entry, event);
}

void SheetView::scrolled() {
  if (!sheet_.Editing()) return;
  const bool isTyping = grid_.hasFocus();
  nimbrel::runAction([this] { sheet_.Grid_Scroll(grid_.isCellVisible(lastCell())); },
                     {[this] { refresh(); }});
  if (isTyping && sheet_.txtEntry.visible) editors_.entry().setFocus(Qt::OtherFocusReason);
}

void SheetView::help() {
  if (sheet_.HelpContextID() != 0) emit helpRequested(sheet_.HelpContextID());
}

void SheetView::keyPressEvent(QKeyEvent* event) {
  const int key = event->key();
  if (key == Qt::Key_F1 && sheet_.HelpContextID() != 0) {
    help();
  } else if ((key == Qt::Key_F6 || key == Qt::Key_Escape) && sheet_.Editing()) {
    editors_.focusEntry();  // back from the links
  } else {
    QWidget::keyPressEvent(event);
  }
}

void SheetView::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  // A chooser is about to set the text of the open cell.
  if (!isRunning_) {
    const auto& entry = editors_.entry();
    const auto caret = entry.hasFocus() ? std::optional(entry.cursorPosition()) : std::nullopt;
    leaveCell();
    caret_ = caret;
  }
  layOut();
  if (sheet_.Editing()) placeEditors();
}

void SheetView::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  switch (event->type()) {
    case QEvent::FontChange:
    case QEvent::StyleChange:
    case QEvent::PaletteChange:
      editors_.forgetIcons();
      measure();
      layOut();
      if (sheet_.Editing()) placeEditors();
      break;
    default: break;
  }
}

void SheetView::measure() {
  constexpr int air = 8;  // pixels above and below a line of text in a cell, together
  const int rowHeight = fontMetrics().height() + air;
  grid_.setRowHeight(rowHeight);
  int widest = 0;
  for (int row = 0; row < sheet_.RowCount(); ++row) {
    const QFontMetrics caption(CellPainter::captionFont(sheet_.row(row), font()));
    const auto text = model_.data(model_.index(row, column::Caption), Qt::DisplayRole).toString();
    widest = std::max(widest, caption.horizontalAdvance(text));
  }
  metrics_ = {
      .pixelWidth = twipsPerPixel,
      .pixelHeight = twipsPerPixel,
      .StandardCellHeight = toTwips(rowHeight),
      .titleHeight = toTwips(title_.sizeHint().height()),
      .helpLabelHeight = toTwips(fontMetrics().height() + 2),
      .textHeight = toTwips(fontMetrics().height()),
      .swatchWidth = toTwips(rowHeight - 1),  // the last pixel is the grid line
      .widestCaption = toTwips(widest),
      .exampleLinkWidth = toTwips(fontMetrics().horizontalAdvance(toDisplay(sheet_.lblExamplesLink.text)))};
  editors_.setIconSize(toPixels(metrics_.buttonSide()));
}

void SheetView::layOut() {
  const int tall = toTwips(height());
  const int top =
      helpHeight_ ? splitterTopAfterResize(tall, *helpHeight_, metrics_) : initialSplitterTop(tall, metrics_);
  const auto layout = LayoutSheet(toTwips(width()), tall, top, metrics_);
  title_.setGeometry(toPixels(layout.lblTitle));
  grid_.setGeometry(toPixels(layout.Grid));
  splitter_.setGeometry(toPixels(layout.imgSplitter));
  help_.layOut(layout);
  setColumns();
}

/// The sheet's geometry reserves 6 pixels for the frame of the grid; ours is narrower.
void SheetView::setColumns() {
  constexpr int frame = 6;
  const auto* bar = grid_.verticalScrollBar();
  const auto scrollWidth = [bar] { return bar->isVisible() ? toTwips(bar->width()) : 0; };
  layoutColumns(sheet_.table().hasStates, toTwips(grid_.viewport()->width() + frame) + scrollWidth(),
                metrics_, scrollWidth,
                [this](int col, int width) { grid_.setColumnWidth(col, toPixels(width)); });
}

EditorPlaces SheetView::editorPlaces() const {
  const auto cell = grid_.placeOf(lastCell()).translated(grid_.viewport()->pos());
  const auto& row = sheet_.row(sheet_.cursorRow());
  const auto& list = row.Kind() == KindSortedList ? sheet_.lstSortedList : sheet_.lstList;
  return nimbrel::placeEditors(row.Kind(), toTwips(cell), toTwips(grid_.geometry()), toTwips(height()),
                               list.list.size(), metrics_);
}

void SheetView::placeEditors() {
  const auto origin = -(grid_.pos() + grid_.viewport()->pos());
  const auto places = editorPlaces();
  const int side = toPixels(metrics_.buttonSide());
  const QRect button(toPixels(places.buttonLeft), toPixels(places.buttonTop), side, side);
  const auto beside = grid_.placeOf({sheet_.cursorRow(), column::Replicate});
  const auto replicate =
      replicatePlace(toTwips(beside.translated(-origin - grid_.pos())), toTwips(grid_.geometry()), metrics_);
  editors_.place(toPixels(places.entry).translated(origin), button.translated(origin),
                 toPixels(replicate).translated(origin));
}

QRect SheetView::listPlace() const {
  if (!sheet_.lstList.visible && !sheet_.lstSortedList.visible) return {};
  const auto place = toPixels(editorPlaces().list);
  return {mapToGlobal(place.topLeft()), place.size()};
}

}  // namespace nimbrel
