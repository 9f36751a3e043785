#include "desktop/tree_view.h"

#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QScopedValueRollback>
#include <unordered_set>

namespace nimbrel {

TreeView::TreeView(TreeModel& model, QWidget* parent) : QTreeView(parent), tree_(model) {
  setModel(&model);
  setHeaderHidden(true);
  setUniformRowHeights(true);
  setEditTriggers(SelectedClicked);  // F2 is a command
  setExpandsOnDoubleClick(true);
  setAccessibleName("Menu structure");
}

void TreeView::showSelected(const Node* node) {
  const auto index = tree_.indexOf(node);
  if (currentIndex() == index && (!index.isValid() || selectionModel()->isSelected(index))) return;
  const QScopedValueRollback rollback(isSettingCurrent_, true);
  setCurrentIndex(index);
  if (index.isValid()) scrollTo(index);
}

void TreeView::filter(const std::vector<const Node*>* nodes) {
  if (nodes == nullptr && !isFiltered_) return;
  isFiltered_ = nodes != nullptr;
  std::unordered_set<const Node*> shown;
  if (nodes != nullptr) {
    for (const Node* node : *nodes) {
      while (node != nullptr && shown.insert(node).second) node = node->Parent();
    }
  }
  const auto* first = TreeModel::node(tree_.index(0, 0));
  for (const Node* node = first; node != nullptr; node = following(node)) {
    const auto index = tree_.indexOf(node);
    const bool isShown = nodes == nullptr || shown.contains(node);
    setRowHidden(index.row(), index.parent(), !isShown);
    if (nodes != nullptr && isShown && node->Child() != nullptr) setExpanded(index, true);
  }
}

void TreeView::expandInitially() {
  constexpr int small = 400;  // rows
  constexpr int levels = 1;
  int rows = 0;
  for (auto index = tree_.index(0, 0); index.isValid() && rows <= small; index = indexBelow(index)) {
    ++rows;
    if (rows + tree_.rowCount(index) > small) {
      expandToDepth(levels);
      return;
    }
    expand(index);
  }
}

void TreeView::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
  QTreeView::currentChanged(current, previous);
  if (!isSettingCurrent_ && !tree_.isChanging() && current.isValid())
    emit nodeChosen(TreeModel::node(current));
}

void TreeView::mousePressEvent(QMouseEvent* event) {
  const auto index = indexAt(event->pos());
  if (event->button() == Qt::RightButton) {  // its menu, which opens on release, is for the node under it
    if (index.isValid() && index != currentIndex()) setCurrentIndex(index);
    return;
  }
  const bool isCurrentAgain = index.isValid() && index == currentIndex() && event->button() == Qt::LeftButton;
  QTreeView::mousePressEvent(event);
  if (isCurrentAgain) emit nodeChosen(TreeModel::node(currentIndex()));
}

void TreeView::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() != Qt::RightButton) {
    QTreeView::mouseReleaseEvent(event);
  } else if (indexAt(event->pos()).isValid()) {
    emit contextMenuRequested(event->globalPosition().toPoint());
  }
}

void TreeView::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Delete && !event->isAutoRepeat()) {
    emit deletePressed();
  } else {
    QTreeView::keyPressEvent(event);
  }
}

/// For the keyboard; `mouseReleaseEvent` handles the mouse.
void TreeView::contextMenuEvent(QContextMenuEvent* event) {
  if (event->reason() == QContextMenuEvent::Mouse || !currentIndex().isValid()) return;
  emit contextMenuRequested(viewport()->mapToGlobal(visualRect(currentIndex()).bottomLeft()));
}

}  // namespace nimbrel
