#include "desktop/tree_model.h"

#include <memory>
#include <utility>

#include "desktop/display_text.h"
#include "desktop/system_clipboard.h"

namespace nimbrel {

TreeModel::TreeModel(Editor& editor, QObject* parent) : QAbstractItemModel(parent), editor_(editor) {
  connections_.push_back(
      editor.rowsAboutToChange.connect([this](const RowChange& change) { begin(change); }));
  connections_.push_back(editor.rowsChanged.connect([this](const RowChange& change) { end(change); }));
  connections_.push_back(editor.nodeChanged.connect([this](const Node& node) {
    const auto changed = indexOf(&node);
    emit dataChanged(changed, changed);
  }));
  connections_.push_back(editor.documentAboutToBeReplaced.connect([this] {
    isChanging_ = true;
    beginResetModel();
  }));
  connections_.push_back(editor.documentReplaced.connect([this] {
    children_.clear();
    endResetModel();
    isChanging_ = false;
  }));
}

void TreeModel::setIcons(QIcon menu, QIcon submenu, QIcon item) {
  menu_ = std::move(menu);
  submenu_ = std::move(submenu);
  item_ = std::move(item);
}

/// Removed nodes must leave the cache, because another node may get their address.
void TreeModel::forget(const Node* top) {
  for (const Node* node = top; node != nullptr; node = following(node, top)) children_.erase(node);
}

void TreeModel::begin(const RowChange& change) {
  isChanging_ = true;
  const auto parent = indexOf(change.parent);
  const int row = static_cast<int>(change.row);
  switch (change.kind) {
    case RowChange::Insert: beginInsertRows(parent, row, row); break;
    case RowChange::Remove:
      beginRemoveRows(parent, row, row);
      forget(childrenOf(change.parent).nodes.at(change.row));
      break;
    case RowChange::Move:
      beginMoveRows(parent, row, row, indexOf(change.newParent), static_cast<int>(change.newRow));
      break;
  }
}

void TreeModel::end(const RowChange& change) {
  children_.erase(change.parent);
  if (change.kind == RowChange::Move) children_.erase(change.newParent);
  switch (change.kind) {
    case RowChange::Insert: endInsertRows(); break;
    case RowChange::Remove: endRemoveRows(); break;
    case RowChange::Move: endMoveRows(); break;
  }
  isChanging_ = false;
}

const TreeModel::Children& TreeModel::childrenOf(const Node* parent) const {
  const auto [found, isNew] = children_.try_emplace(parent);
  auto& children = found->second;
  if (!isNew) return children;
  const Node* first = parent == nullptr ? editor_.document().tvTreeView.root() : parent->Child();
  for (const Node* node = first; node != nullptr; node = node->Next()) {
    children.rows.emplace(node, static_cast<int>(children.nodes.size()));
    children.nodes.push_back(node);
  }
  return children;
}

QModelIndex TreeModel::indexOf(const Node* node) const {
  return node == nullptr ? QModelIndex() : createIndex(childrenOf(node->Parent()).rows.at(node), 0, node);
}

const Node* TreeModel::node(const QModelIndex& index) {
  return static_cast<const Node*>(index.constInternalPointer());
}

QModelIndex TreeModel::index(int row, int column, const QModelIndex& parent) const {
  const auto& nodes = childrenOf(node(parent)).nodes;
  if (column != 0 || row < 0 || std::cmp_greater_equal(row, nodes.size())) return {};
  return createIndex(row, 0, nodes[static_cast<std::size_t>(row)]);
}

QModelIndex TreeModel::parent(const QModelIndex& index) const {
  return index.isValid() ? indexOf(node(index)->Parent()) : QModelIndex();
}

int TreeModel::rowCount(const QModelIndex& parent) const {
  return static_cast<int>(childrenOf(node(parent)).nodes.size());
}

int TreeModel::columnCount(const QModelIndex&) const { return 1; }

Qt::ItemFlags TreeModel::flags(const QModelIndex& index) const {
  const bool isEditable = index.isValid() && editor_.document().element(*node(index)) != nullptr;
  auto flags = QAbstractItemModel::flags(index) | Qt::ItemIsDropEnabled;
  if (isEditable) flags |= Qt::ItemIsEditable;
  if (index.isValid() && kindOf(node(index)->Key) != Kind::Menu) flags |= Qt::ItemIsDragEnabled;
  return flags;
}

Qt::DropActions TreeModel::supportedDropActions() const { return Qt::MoveAction | Qt::CopyAction; }

QStringList TreeModel::mimeTypes() const { return {nodesFormat, "text/plain"}; }

QMimeData* TreeModel::mimeData(const QModelIndexList& indexes) const {
  Nodes nodes;
  for (const auto& index : indexes) nodes.push_back(node(index));
  auto data = std::make_unique<DraggedNodes>(topmost(editor_.document(), nodes));
  dragRules_.describe(*data, data->nodes);
  return data.release();
}

/// A view means the place before a row, or a node itself if `row` is -1.
TreeModel::Target TreeModel::targetOf(int row, const QModelIndex& parent) const {
  const auto& nodes = childrenOf(node(parent)).nodes;
  if (row < 0 || nodes.empty()) return {node(parent), Drop::Into};
  if (std::cmp_less(row, nodes.size())) return {nodes[static_cast<std::size_t>(row)], Drop::Before};
  return {nodes.back(), Drop::After};
}

bool TreeModel::canDropMimeData(const QMimeData* data, Qt::DropAction action, int row, int,
                                const QModelIndex& parent) const {
  const auto target = targetOf(row, parent);
  if (target.node == nullptr || data == nullptr) return false;
  if (const auto* own = qobject_cast<const DraggedNodes*>(data)) {
    return dragRules_.canDrop(own->nodes, *target.node, target.drop, action == Qt::CopyAction);
  }
  return data->hasFormat(nodesFormat) || data->hasText();
}

bool TreeModel::dropMimeData(const QMimeData* data, Qt::DropAction action, int row, int column,
                             const QModelIndex& parent) {
  if (!canDropMimeData(data, action, row, column, parent)) return false;
  const auto target = targetOf(row, parent);
  emit dropped(data, target.node, target.drop, action == Qt::CopyAction);
  return true;
}

bool TreeModel::setData(const QModelIndex& index, const QVariant& value, int role) {
  if (role != Qt::EditRole || !index.isValid()) return false;
  emit renamed(node(index), value.toString());
  return true;
}

QVariant TreeModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid()) return {};
  const auto kind = kindOf(node(index)->Key);
  switch (role) {
    case Qt::EditRole: {
      const auto* element = editor_.document().element(*node(index));
      return element == nullptr ? QVariant() : toDisplay(nameOf(*element));
    }
    case Qt::DisplayRole: return toDisplay(node(index)->Text);
    case Qt::DecorationRole: return kind == Kind::Menu ? menu_ : kind == Kind::Submenu ? submenu_ : item_;
    case Qt::AccessibleDescriptionRole:
      switch (kind) {
        case Kind::Menu: return "main menu";
        case Kind::Submenu: return "submenu";
        default: return "item";
      }
    default: return {};
  }
}

}  // namespace nimbrel
