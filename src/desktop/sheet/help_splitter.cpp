#include "desktop/sheet/help_splitter.h"

#include <QKeyEvent>
#include <QMouseEvent>

#include "desktop/twips.h"
#include "properties/sheet_geometry.h"

namespace nimbrel {

HelpSplitter::HelpSplitter(QWidget* parent) : QWidget(parent), shadow_(parent) {
  setObjectName("imgSplitter");
  setCursor(Qt::SplitVCursor);
  setFocusPolicy(Qt::TabFocus);
  setAccessibleName("Splitter between properties and help");
  setAutoFillBackground(true);
  shadow_.setObjectName("picSplitter");
  shadow_.setAutoFillBackground(true);
  shadow_.setBackgroundRole(QPalette::Highlight);
  shadow_.hide();
}

int HelpSplitter::draggedTop(int pixelsFromTop) const {
  return draggedSplitterTop(toTwips(y()), toTwips(pixelsFromTop), toTwips(parentWidget()->height()));
}

void HelpSplitter::mousePressEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return;
  emit dragStarted();
  shadow_.setGeometry(toPixels(draggingShadow(toTwips(geometry()))));
  shadow_.show();
  shadow_.raise();
}

void HelpSplitter::mouseMoveEvent(QMouseEvent* event) {
  if (shadow_.isVisible()) shadow_.move(shadow_.x(), toPixels(draggedTop(event->position().toPoint().y())));
}

void HelpSplitter::mouseReleaseEvent(QMouseEvent*) {
  if (!shadow_.isVisible()) return;
  shadow_.hide();
  emit moved(toTwips(shadow_.y()));
}

void HelpSplitter::keyPressEvent(QKeyEvent* event) {
  constexpr int step = 10;
  if (event->key() != Qt::Key_Up && event->key() != Qt::Key_Down) {
    QWidget::keyPressEvent(event);
    return;
  }
  emit dragStarted();
  emit moved(draggedTop(event->key() == Qt::Key_Up ? -step : step));
}

void HelpSplitter::focusInEvent(QFocusEvent*) { setBackgroundRole(QPalette::Highlight); }

void HelpSplitter::focusOutEvent(QFocusEvent*) { setBackgroundRole(QPalette::Window); }

}  // namespace nimbrel
