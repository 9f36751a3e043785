#include "desktop/main_area.h"

#include <QLabel>
#include <QVBoxLayout>

namespace nimbrel {
namespace {

// Pixels. Together they fit into the smallest window.
constexpr int narrowestTree = 100;
constexpr int narrowestSheet = 90;
constexpr int barMargin = 33;

}  // namespace

MainArea::MainArea(QWidget& tree, std::span<QWidget* const> sheets, QWidget* parent)
    : PaneSplitter(Qt::Horizontal, barMargin, parent) {
  auto* left = new QWidget;
  auto* column = new QVBoxLayout(left);
  auto* title = new QLabel("Menu Structure");
  title->setObjectName("lblMenuTitle");
  title->setMargin(3);
  title->setBuddy(&tree);
  column->setContentsMargins({});
  column->setSpacing(0);
  column->addWidget(title);
  column->addWidget(&tree, 1);
  left->setMinimumWidth(narrowestTree);

  sheets_.addWidget(new QWidget);  // while no sheet is visible
  for (auto* sheet : sheets) sheets_.addWidget(sheet);
  sheets_.setMinimumWidth(narrowestSheet);

  setPanes(*left, sheets_, "Splitter between tree and properties");
  setSizes({2 * width(), 3 * width()});
  connect(this, &QSplitter::splitterMoved, this, [this] {
    // From now on the tree keeps its width. Before, it keeps its share of the window.
    setStretchFactor(0, 0);
    setStretchFactor(1, 1);
  });
}

void MainArea::showSheet(QWidget& sheet) {
  if (sheets_.currentWidget() == &sheet) return;
  const bool hasFocus = sheets_.isAncestorOf(window()->focusWidget());
  // Otherwise the focus would move to the next widget when the other sheet is hidden.
  if (hasFocus) sheets_.setFocus(Qt::OtherFocusReason);
  sheets_.setCurrentWidget(&sheet);
  if (hasFocus) sheet.setFocus(Qt::OtherFocusReason);
}

}  // namespace nimbrel
