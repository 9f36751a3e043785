#include "desktop/tree_view.h"

#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QScopedValueRollback>
#include <algorithm>
#include <optional>
#include <unordered_set>
#include <utility>

namespace nimbrel {

TreeView::TreeView(TreeModel& model, QWidget* parent) : QTreeView(parent), tree_(model) {
  setModel(&model);
  setHeaderHidden(true);
  setUniformRowHeights(true);
  setEditTriggers(SelectedClicked);  // F2 is a command
  setExpandsOnDoubleClick(true);
  setSelectionMode(ExtendedSelection);
  setDragDropMode(DragDrop);
  setDefaultDropAction(Qt::MoveAction);
  setAccessibleName("Menu structure");
}

void TreeView::showSelected(const Nodes& nodes) {
  chosen_ = nodes;
  const auto index = nodes.empty() ? QModelIndex() : tree_.indexOf(nodes.front());
  QItemSelection wanted;
  for (const auto* node : nodes) wanted.select(tree_.indexOf(node), tree_.indexOf(node));
  const auto rows = selectionModel()->selectedIndexes();
  const bool isShown = currentIndex() == index && std::cmp_equal(rows.size(), nodes.size()) &&
                       std::ranges::all_of(rows, [&](const auto& row) { return wanted.contains(row); });
  if (isShown) return;
  const QScopedValueRollback rollback(isSettingCurrent_, true);
  const bool moves = currentIndex() != index;
  selectionModel()->setCurrentIndex(index, QItemSelectionModel::NoUpdate);
  selectionModel()->select(wanted, QItemSelectionModel::ClearAndSelect);
  if (moves && index.isValid()) scrollTo(index);
}

void TreeView::editName(bool asOutline) {
  isOutline_ = asOutline;
  edit(currentIndex());
  if (auto* editor = indexWidget(currentIndex())) editor->installEventFilter(this);
}

/// Sees the keys of the editor of a name before its delegate does.
bool TreeView::eventFilter(QObject* watched, QEvent* event) {
  auto* editor = qobject_cast<QLineEdit*>(watched);
  if (!isOutline_ || editor == nullptr || event->type() != QEvent::KeyPress) {
    return QTreeView::eventFilter(watched, event);
  }
  const auto* key = static_cast<QKeyEvent*>(event);
  std::optional<NameEnd> end;
  switch (key->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter: end = NameEnd::Next; break;
    case Qt::Key_Tab: end = NameEnd::Deeper; break;
    case Qt::Key_Backtab: end = NameEnd::Higher; break;
    case Qt::Key_Escape: end = NameEnd::Cancel; break;
    default: return QTreeView::eventFilter(watched, event);
  }
  const bool isTyped =
      end != NameEnd::Cancel && editor->text() != currentIndex().data(Qt::EditRole).toString();
  if (isTyped) commitData(editor);
  closeEditor(editor, QAbstractItemDelegate::NoHint);
  isOutline_ = false;
  emit nameEnded(*end, isTyped);
  return true;
}

void TreeView::selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) {
  QTreeView::selectionChanged(selected, deselected);
  choose();
}

/// Tells which nodes are selected. Qt tells of the selection and of the current node one after the other.
void TreeView::choose() {
  if (isSettingCurrent_ || tree_.isChanging()) return;
  const auto* current = TreeModel::node(currentIndex());
  Nodes nodes;
  for (const auto& index : selectionModel()->selectedIndexes()) nodes.push_back(TreeModel::node(index));
  if (nodes.empty() && current != nullptr) nodes.push_back(current);  // one is always selected
  const auto found = std::ranges::find(nodes, current);
  if (found != nodes.end()) std::iter_swap(nodes.begin(), found);
  if (nodes.empty() || nodes == chosen_) return;
  chosen_ = nodes;
  emit nodesChosen(nodes);
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
  choose();
}

void TreeView::mousePressEvent(QMouseEvent* event) {
  const auto index = indexAt(event->pos());
  if (event->button() == Qt::RightButton) {  // its menu, which opens on release, is for the node under it
    if (index.isValid() && !selectionModel()->isSelected(index)) setCurrentIndex(index);
    return;
  }
  const bool isCurrentAgain = index.isValid() && index == currentIndex() && event->button() == Qt::LeftButton;
  QTreeView::mousePressEvent(event);
  if (isCurrentAgain && chosen_.size() == 1) emit nodesChosen(chosen_);
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
