#include "desktop/main_area.h"

#include <QKeyEvent>
#include <QMouseEvent>

#include "desktop/twips.h"
#include "shell/window_layout.h"

namespace nimbrel {
namespace {

constexpr int gripWidth = 40 / twipsPerPixel + 2;  // fills the gap before the sheets

}  // namespace

MainArea::MainArea(QWidget& tree, std::vector<QWidget*> sheets, QWidget* parent)
    : QWidget(parent),
      tree_(tree),
      sheets_(std::move(sheets)),
      title_("Menu Structure", this),
      grip_(this),
      bar_(this) {
  tree_.setParent(this);
  for (auto* sheet : sheets_) sheet->setParent(this);
  title_.setObjectName("lblMenuTitle");
  title_.setMargin(3);
  title_.setBuddy(&tree_);
  grip_.setObjectName("imgSplitter");
  grip_.setCursor(Qt::SplitHCursor);
  grip_.setFocusPolicy(Qt::TabFocus);
  grip_.setAccessibleName("Splitter between tree and properties");
  grip_.installEventFilter(this);
  bar_.setAutoFillBackground(true);
  bar_.setBackgroundRole(QPalette::Highlight);
  bar_.hide();
}

namespace {

WindowMeasures measures(const QWidget& area, const QLabel& title) {
  return {.formWidth = toTwips(area.width()),
          .innerHeight = toTwips(area.height()),
          .toolbarVisible = false,  // bars are outside of the area
          .statusBarVisible = true,
          .statusBarHeight = 0,
          .labelHeight = toTwips(title.sizeHint().height()),
          .splitterWidth = toTwips(gripWidth),
          .pixel = twipsPerPixel};
}

}  // namespace

void MainArea::setSplitter(int pixelsFromLeft) {
  splitter_ = pixelsFromLeft;
  isPlaced_ = true;
  layOut();
}

void MainArea::layOut() {
  if (width() == 0 || height() == 0) return;
  const auto layout = SizeControls(measures(*this, title_), toTwips(splitter_));
  title_.setGeometry(toPixels(layout.lblMenuTitle));
  title_.resize(title_.width(), title_.sizeHint().height());
  tree_.setGeometry(toPixels(layout.tvTreeView));
  auto grip = toPixels(layout.imgSplitter);
  grip.setWidth(gripWidth);
  grip_.setGeometry(grip);
  for (auto* sheet : sheets_) sheet->setGeometry(toPixels(layout.sheets));
}

void MainArea::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  if (!isPlaced_) splitter_ = width() * 2 / 5;
  layOut();
}

bool MainArea::eventFilter(QObject* watched, QEvent* event) {
  return (watched == &grip_ && drag(*event)) || QWidget::eventFilter(watched, event);
}

bool MainArea::drag(QEvent& event) {
  const auto window = measures(*this, title_);
  const auto grip = toTwips(grip_.geometry());
  switch (event.type()) {
    case QEvent::MouseButtonPress:
      if (static_cast<QMouseEvent&>(event).button() != Qt::LeftButton) return false;
      bar_.setGeometry(toPixels(splitterBar(grip)));
      bar_.show();
      bar_.raise();
      isDragged_ = true;
      return true;
    case QEvent::MouseMove:
      if (!isDragged_) return false;
      bar_.move(
          toPixels(splitterBarLeft(window, grip.left, toTwips(static_cast<QMouseEvent&>(event).pos().x()))),
          bar_.y());
      return true;
    case QEvent::MouseButtonRelease:
      if (!isDragged_) return false;
      isDragged_ = false;
      bar_.hide();
      setSplitter(bar_.x());
      return true;
    case QEvent::KeyPress: {
      constexpr int step = 10;
      const int key = static_cast<QKeyEvent&>(event).key();
      if (key != Qt::Key_Left && key != Qt::Key_Right) return false;
      setSplitter(tree_.width() + (key == Qt::Key_Left ? -step : step));
      return true;
    }
    case QEvent::FocusIn:
    case QEvent::FocusOut:
      grip_.setBackgroundRole(event.type() == QEvent::FocusIn ? QPalette::Highlight : QPalette::NoRole);
      grip_.setAutoFillBackground(event.type() == QEvent::FocusIn);
      return false;
    default: return false;
  }
}

}  // namespace nimbrel
