#include "desktop/sheet/sheet_view.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QVBoxLayout>

#include "desktop/display_text.h"

namespace nimbrel {
namespace {

// Pixels.
constexpr int smallestSheet = 33;  // in either direction
constexpr int lowestGrid = 16;
constexpr int barMargin = 20;

}  // namespace

SheetView::SheetView(PropertySheet& sheet, IconSource icons, QWidget* parent)
    : QWidget(parent),
      sheet_(sheet),
      model_(sheet),
      title_(this),
      splitter_(Qt::Vertical, barMargin, this),
      grid_(model_, this),
      help_(
          sheet, [this](const Action& action) { runAction(action); }, this),
      editor_(
          sheet, std::move(icons), [this](const Action& action) { runAction(action); }, grid_.viewport()),
      delegate_(model_, editor_) {
  setObjectName(toDisplay(sheet.name));
  title_.setObjectName(toDisplay(sheet.lblTitle.name));
  title_.setTextFormat(Qt::PlainText);
  title_.setText(toDisplay(sheet.lblTitle.text));
  title_.setMargin(3);
  title_.setBuddy(&grid_);
  grid_.setDelegate(delegate_);
  setFocusProxy(&grid_);
  layOut();
  connectAll();
  refresh();
  grid_.goTo(cellAfter(sheet, {-1, column::Normal}, Step::Below).value_or(lastCell()));
}

/// The help keeps its height when the sheet is resized.
void SheetView::layOut() {
  setMinimumSize(smallestSheet, smallestSheet);
  grid_.setMinimumSize(1, lowestGrid);
  splitter_.setPanes(grid_, help_, "Splitter between properties and help");
  splitter_.setStretchFactor(0, 1);
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins({});
  column->setSpacing(0);
  column->addWidget(&title_);
  column->addWidget(&splitter_, 1);
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
  connect(&editor_.entry(), &EntryEdit::commandRequested, this, &SheetView::command);
  connect(&editor_.list(), &ListPopup::helpRequested, this, &SheetView::help);
  connect(&splitter_, &PaneSplitter::dragStarted, this, &SheetView::leaveCell);
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
  auto& entry = editor_.entry();
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
  // Otherwise hiding the entry would move the focus to the next widget.
  if (!sheet_.txtEntry.visible && editor_.entry().hasFocus()) grid_.setFocus(Qt::OtherFocusReason);
  editor_.refresh(model_.nameOf(sheet_.cursorRow(), sheet_.cursorColumn()));
}

/// An action may open another cell: replicating moves to the first state.
void SheetView::followOpenCell() {
  const auto open = openCell();
  const auto before = std::exchange(lastOpenCell_, open);
  if (open == before) return;
  const bool isTyping = editor_.entry().hasFocus();
  if (before) grid_.closeEditors(*before);
  if (!open) return;
  editor_.begin();
  if (grid_.current() != *open) grid_.goTo(*open);
  grid_.openEditors(*open);
  if (isTyping) editor_.entry().setFocus(Qt::OtherFocusReason);
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
  if (sheet_.Editing()) editor_.focusEntry();
}

void SheetView::press(int row, int col) {
  grid_.setFocus(Qt::MouseFocusReason);
  if (row < 0 || col < 0) {
    leaveCell();
  } else if (model_.isOpen(row, col)) {
    editor_.focusEntry();
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
    case EntryCommand::PressButton: editor_.pressButton(); break;
    case EntryCommand::Replicate:
      runAction([this] { sheet_.click(sheet_.btnReplicate); });
      editor_.focusEntry();
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
    editor_.entry().setFocus(Qt::OtherFocusReason);
  } else {
    const auto caret = std::exchange(caret_, std::nullopt);
    open(grid_.current());
    column_ = sheet_.cursorColumn();
    if (caret) editor_.entry().setCursorPosition(*caret);
  }
}

void SheetView::cellKeyPressed(QKeyEvent* event) {
  const bool wasOpen = sheet_.Editing();
  continueTyping();
  const int key = event->key();
  const bool onlyOpens = key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_F2;
  auto& entry = editor_.entry();
  if (entry.hasFocus() && (wasOpen || !onlyOpens)) QCoreApplication::sendEvent(&entry, event);
}

void SheetView::compose(QInputMethodEvent* event) {
  continueTyping();
  auto& entry = editor_.entry();
  if (entry.hasFocus()) QCoreApplication::sendEvent(&entry, event);
}

void SheetView::scrolled() {
  if (!sheet_.Editing()) return;
  const bool isTyping = grid_.hasFocus();
  nimbrel::runAction([this] { sheet_.Grid_Scroll(grid_.isCellVisible(lastCell())); },
                     {[this] { refresh(); }});
  if (isTyping && sheet_.txtEntry.visible) editor_.entry().setFocus(Qt::OtherFocusReason);
}

void SheetView::help() {
  if (sheet_.HelpContextID() != 0) emit helpRequested(sheet_.HelpContextID());
}

void SheetView::keyPressEvent(QKeyEvent* event) {
  const int key = event->key();
  if (key == Qt::Key_F1 && sheet_.HelpContextID() != 0) {
    help();
  } else if ((key == Qt::Key_F6 || key == Qt::Key_Escape) && sheet_.Editing()) {
    editor_.focusEntry();  // back from the links
  } else {
    QWidget::keyPressEvent(event);
  }
}

void SheetView::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  // A chooser is about to set the text of the open cell.
  if (!isRunning_) {
    const auto& entry = editor_.entry();
    const auto caret = entry.hasFocus() ? std::optional(entry.cursorPosition()) : std::nullopt;
    leaveCell();
    caret_ = caret;
  }
}

}  // namespace nimbrel
