#include "desktop/pane_splitter.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <algorithm>
#include <utility>

namespace nimbrel {

PaneSplitter::PaneSplitter(Qt::Orientation orientation, int barMargin, QWidget* parent)
    : QSplitter(orientation, parent), barMargin_(barMargin) {
  setChildrenCollapsible(false);
  setOpaqueResize(false);
}

void PaneSplitter::setPanes(QWidget& first, QWidget& second, const QString& name) {
  addWidget(&first);
  addWidget(&second);
  handle(1)->setObjectName("imgSplitter");
  handle(1)->setAccessibleName(name);
}

QSplitterHandle* PaneSplitter::createHandle() { return new PaneSplitterHandle(*this); }

PaneSplitterHandle::PaneSplitterHandle(PaneSplitter& splitter)
    : QSplitterHandle(splitter.orientation(), &splitter), splitter_(splitter) {
  setFocusPolicy(Qt::TabFocus);
}

int PaneSplitterHandle::barAt(const QPoint& global) const {
  const auto room = splitter_.contentsRect().size();
  const int end = (isAcross() ? room.width() : room.height()) - splitter_.barMargin_;
  return std::min(std::max(along(splitter_.mapFromGlobal(global)) - grip_, splitter_.barMargin_), end);
}

/// QSplitter counts from the first pane, which is the right one in a layout from right to left.
void PaneSplitterHandle::put(int place) {
  const bool isMirrored = isAcross() && isRightToLeft();
  splitter_.moveSplitter(isMirrored ? splitter_.contentsRect().width() - width() - place : place, 1);
}

void PaneSplitterHandle::mousePressEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return;
  emit splitter_.dragStarted();
  grip_ = along(event->position().toPoint());
  splitter_.setRubberBand(barAt(event->globalPosition().toPoint()));
}

void PaneSplitterHandle::mouseMoveEvent(QMouseEvent* event) {
  if (grip_ >= 0) splitter_.setRubberBand(barAt(event->globalPosition().toPoint()));
}

void PaneSplitterHandle::mouseReleaseEvent(QMouseEvent* event) {
  if (grip_ < 0 || event->button() != Qt::LeftButton) return;
  const int place = barAt(event->globalPosition().toPoint());
  grip_ = -1;
  splitter_.setRubberBand(-1);
  put(place);
}

void PaneSplitterHandle::keyPressEvent(QKeyEvent* event) {
  constexpr int step = 10;
  const auto [back, forward] =
      isAcross() ? std::pair(Qt::Key_Left, Qt::Key_Right) : std::pair(Qt::Key_Up, Qt::Key_Down);
  if (event->key() != back && event->key() != forward) {
    QSplitterHandle::keyPressEvent(event);
    return;
  }
  emit splitter_.dragStarted();
  put(along(pos()) + (event->key() == back ? -step : step));
}

void PaneSplitterHandle::focusInEvent(QFocusEvent*) { update(); }

void PaneSplitterHandle::focusOutEvent(QFocusEvent*) { update(); }

void PaneSplitterHandle::paintEvent(QPaintEvent* event) {
  if (hasFocus()) {
    QPainter(this).fillRect(rect(), palette().highlight());
  } else {
    QSplitterHandle::paintEvent(event);
  }
}

}  // namespace nimbrel
