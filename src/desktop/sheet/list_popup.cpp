#include "desktop/sheet/list_popup.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QScreen>
#include <QScrollBar>
#include <QVBoxLayout>

#include "desktop/display_text.h"

namespace nimbrel {
namespace {

constexpr int spacing = 2;   // pixels between entries
constexpr int mostRows = 8;  // more entries scroll

}  // namespace

ListPopup::ListPopup(QWidget* parent) : QFrame(parent, Qt::Popup) {
  setFrameStyle(Box | Plain);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(&list_);
  list_.setObjectName("entries");
  list_.setFrameShape(NoFrame);
  list_.setUniformItemSizes(true);
  list_.setMouseTracking(true);
  list_.setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  list_.installEventFilter(this);
  setFocusProxy(&list_);
  connect(&list_, &QListWidget::itemEntered, &list_,
          [this](QListWidgetItem* item) { list_.setCurrentItem(item); });
  connect(&list_, &QListWidget::clicked, this,
          [this](const QModelIndex& index) { emit chosen(index.row()); });
}

int ListPopup::entryHeight() const { return list_.fontMetrics().height() + spacing; }

void ListPopup::fill(const std::vector<std::string>& texts) {
  if (texts_ == texts) return;
  texts_ = texts;
  list_.clear();
  widest_ = 0;
  constexpr int margin = 8;  // pixels, both sides together
  for (const auto& text : texts) {
    auto* item = new QListWidgetItem(toDisplay(text), &list_);
    widest_ = std::max(widest_, list_.fontMetrics().horizontalAdvance(item->text()) + margin);
    item->setSizeHint(QSize(1, entryHeight()));
  }
}

void ListPopup::setCurrentText(const QString& text) {
  const auto found = list_.findItems(text, Qt::MatchExactly | Qt::MatchCaseSensitive);
  list_.setCurrentItem(found.isEmpty() ? nullptr : found.constFirst());
}

int ListPopup::search(const QString& typed) {
  list_.keyboardSearch(typed);
  return list_.currentRow();
}

void ListPopup::open(const QRect& cell) {
  cell_ = cell;
  const int frame = 2 * frameWidth();
  const int bar = list_.verticalScrollBar()->sizeHint().width();
  const auto available = parentWidget()->screen()->availableGeometry();
  const QSize wanted(std::max(cell.width(), widest_ + bar + frame),
                     std::min(list_.count(), mostRows) * entryHeight() + frame);
  QRect place(cell.bottomLeft() + QPoint(0, 1), wanted.boundedTo(available.size()));
  if (isRightToLeft()) place.moveRight(cell.right());
  if (place.bottom() > available.bottom()) place.moveBottom(cell.top() - 1);
  place.moveLeft(std::clamp(place.left(), available.left(), available.right() + 1 - place.width()));
  place.moveTop(std::clamp(place.top(), available.top(), available.bottom() + 1 - place.height()));
  setGeometry(place);
  show();
  list_.setFocus(Qt::PopupFocusReason);
  if (list_.currentItem() != nullptr) list_.scrollToItem(list_.currentItem());
}

/// Only clicks outside of the list arrive here.
void ListPopup::mousePressEvent(QMouseEvent* event) {
  if (cell_.contains(event->globalPosition().toPoint())) setAttribute(Qt::WA_NoMouseReplay);
  QFrame::mousePressEvent(event);
}

void ListPopup::hideEvent(QHideEvent* event) {
  QFrame::hideEvent(event);
  emit closed();
}

bool ListPopup::focusNextPrevChild(bool next) { return acceptCurrent(next ? Qt::Key_Tab : Qt::Key_Backtab); }

bool ListPopup::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::KeyPress) return QFrame::eventFilter(watched, event);
  return handleKey(static_cast<QKeyEvent*>(event)->key()) || QFrame::eventFilter(watched, event);
}

bool ListPopup::acceptCurrent(int key) {
  const int entry = list_.currentRow();
  if (entry < 0) {
    hide();
  } else if (key == Qt::Key_Tab || key == Qt::Key_Backtab) {
    emit chosenByTab(entry, key == Qt::Key_Tab);
  } else {
    emit chosen(entry);
  }
  return true;
}

bool ListPopup::handleKey(int key) {
  switch (key) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Tab:
    case Qt::Key_Backtab: return acceptCurrent(key);
    case Qt::Key_Escape:
    case Qt::Key_F4: hide(); return true;
    case Qt::Key_F1: emit helpRequested(); return true;
    default: return false;
  }
}

}  // namespace nimbrel
