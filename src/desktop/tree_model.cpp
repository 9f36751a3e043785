#include "desktop/tree_model.h"

#include <algorithm>

#include "desktop/display_text.h"

namespace nimbrel {

struct TreeModel::Mirror {
  std::string key;
  SharedText text;
  Mirror* parent = nullptr;
  std::size_t row = 0;
  Children children;

  /// Not recursive: the nesting of a file is only limited by its length.
  ~Mirror() {
    Children all = std::move(children);
    for (std::size_t i = 0; i < all.size(); ++i) {
      auto below = std::move(all[i]->children);
      std::ranges::move(below, std::back_inserter(all));
    }
  }
  Mirror() = default;
  Mirror(const Mirror&) = delete;
  Mirror& operator=(const Mirror&) = delete;
};

namespace {

std::vector<Node*> siblingsFrom(Node* first) {
  std::vector<Node*> nodes;
  for (Node* node = first; node != nullptr; node = node->Next()) nodes.push_back(node);
  return nodes;
}

template <class Children>
void number(const Children& children, std::size_t first) {
  for (std::size_t row = first; row < children.size(); ++row) children[row]->row = row;
}

}  // namespace

TreeModel::TreeModel(Tree& tree, QObject* parent)
    : QAbstractItemModel(parent), tree_(tree), top_(std::make_unique<Mirror>()) {
  reset();
}

TreeModel::~TreeModel() = default;

void TreeModel::setIcons(QIcon menu, QIcon submenu, QIcon item) {
  menu_ = std::move(menu);
  submenu_ = std::move(submenu);
  item_ = std::move(item);
}

/// Not recursive, as the destructor above.
std::unique_ptr<TreeModel::Mirror> TreeModel::copyOf(const Node& top, Mirror* parent) {
  auto copied = std::make_unique<Mirror>();
  copied->parent = parent;
  std::vector<std::pair<const Node*, Mirror*>> open{{&top, copied.get()}};
  while (!open.empty()) {
    const auto [node, mirror] = open.back();
    open.pop_back();
    mirror->key = node->Key;
    mirror->text = node->Text;
    byKey_[node->Key] = mirror;
    mirror->children.reserve(node->Children());
    for (const Node* child = node->Child(); child != nullptr; child = child->Next()) {
      auto& made = mirror->children.emplace_back(std::make_unique<Mirror>());
      made->parent = mirror;
      made->row = mirror->children.size() - 1;
      open.emplace_back(child, made.get());
    }
  }
  return copied;
}

void TreeModel::reset() {
  beginResetModel();
  byKey_.clear();
  top_ = std::make_unique<Mirror>();
  for (const Node* root : siblingsFrom(tree_.root())) top_->children.push_back(copyOf(*root, top_.get()));
  number(top_->children, 0);
  endResetModel();
}

void TreeModel::sync() {
  std::vector<std::pair<Mirror*, std::vector<Node*>>> open;
  open.emplace_back(top_.get(), siblingsFrom(tree_.root()));
  while (!open.empty()) {
    auto [mirror, nodes] = std::move(open.back());
    open.pop_back();
    syncChildren(*mirror, nodes);
    for (std::size_t row = 0; row < nodes.size(); ++row) {
      auto& child = *mirror->children[row];
      if (child.text.view() != nodes[row]->Text.view()) syncText(*nodes[row]);
      open.emplace_back(&child, siblingsFrom(nodes[row]->Child()));
    }
  }
}

void TreeModel::syncText(const Node& node) {
  const auto found = byKey_.find(node.Key);
  if (found == byKey_.end()) return;
  found->second->text = node.Text;
  const auto index = indexOf(*found->second);
  emit dataChanged(index, index);
}

/// Replaces the rows between the common start and the common end. Two neighbours that were swapped are moved instead,
/// so that the views keep their state.
void TreeModel::syncChildren(Mirror& mirror, std::vector<Node*> nodes) {
  const auto& old = mirror.children;
  const auto same = [&](std::size_t row, std::size_t node) { return old[row]->key == nodes[node]->Key; };
  const auto shorter = std::min(old.size(), nodes.size());
  std::size_t start = 0;
  while (start < shorter && same(start, start)) ++start;
  std::size_t end = 0;
  while (end < shorter - start && same(old.size() - 1 - end, nodes.size() - 1 - end)) ++end;
  const auto oldEnd = old.size() - end;
  const auto newEnd = nodes.size() - end;
  if (oldEnd - start == 2 && newEnd - start == 2 && same(start, start + 1) && same(start + 1, start)) {
    swap(mirror, start);
    return;
  }
  if (oldEnd > start) remove(mirror, start, oldEnd - 1);
  if (newEnd > start) {
    insert(mirror, start,
           {nodes.begin() + static_cast<std::ptrdiff_t>(start),
            nodes.begin() + static_cast<std::ptrdiff_t>(newEnd)});
  }
}

void TreeModel::insert(Mirror& mirror, std::size_t at, const std::vector<Node*>& nodes) {
  beginInsertRows(indexOf(mirror), static_cast<int>(at), static_cast<int>(at + nodes.size() - 1));
  Children added;
  for (const Node* node : nodes) added.push_back(copyOf(*node, &mirror));
  mirror.children.insert(mirror.children.begin() + static_cast<std::ptrdiff_t>(at),
                         std::make_move_iterator(added.begin()), std::make_move_iterator(added.end()));
  number(mirror.children, at);
  endInsertRows();
}

void TreeModel::remove(Mirror& mirror, std::size_t first, std::size_t last) {
  beginRemoveRows(indexOf(mirror), static_cast<int>(first), static_cast<int>(last));
  for (std::size_t row = first; row <= last; ++row) forget(*mirror.children[row]);
  mirror.children.erase(mirror.children.begin() + static_cast<std::ptrdiff_t>(first),
                        mirror.children.begin() + static_cast<std::ptrdiff_t>(last + 1));
  number(mirror.children, first);
  endRemoveRows();
}

void TreeModel::swap(Mirror& mirror, std::size_t first) {
  const auto parent = indexOf(mirror);
  const int row = static_cast<int>(first);
  beginMoveRows(parent, row + 1, row + 1, parent, row);
  std::swap(mirror.children[first], mirror.children[first + 1]);
  number(mirror.children, first);
  endMoveRows();
}

/// A node that was moved may already have an entry for its new place.
void TreeModel::forget(const Mirror& top) {
  std::vector<const Mirror*> open{&top};
  while (!open.empty()) {
    const auto* mirror = open.back();
    open.pop_back();
    const auto found = byKey_.find(mirror->key);
    if (found != byKey_.end() && found->second == mirror) byKey_.erase(found);
    for (const auto& child : mirror->children) open.push_back(child.get());
  }
}

TreeModel::Mirror* TreeModel::mirrorOf(const QModelIndex& index) const {
  return index.isValid() ? static_cast<Mirror*>(index.internalPointer()) : top_.get();
}

QModelIndex TreeModel::indexOf(Mirror& mirror) const {
  return &mirror == top_.get() ? QModelIndex() : createIndex(static_cast<int>(mirror.row), 0, &mirror);
}

QModelIndex TreeModel::indexOf(const Node* node) const {
  const auto found = node == nullptr ? byKey_.end() : byKey_.find(node->Key);
  return found == byKey_.end() ? QModelIndex() : indexOf(*found->second);
}

Node* TreeModel::node(const QModelIndex& index) const {
  return index.isValid() ? tree_.find(mirrorOf(index)->key) : nullptr;
}

QModelIndex TreeModel::index(int row, int column, const QModelIndex& parent) const {
  const auto& children = mirrorOf(parent)->children;
  if (column != 0 || row < 0 || std::cmp_greater_equal(row, children.size())) return {};
  return createIndex(row, 0, children[static_cast<std::size_t>(row)].get());
}

QModelIndex TreeModel::parent(const QModelIndex& index) const {
  return index.isValid() ? indexOf(*mirrorOf(index)->parent) : QModelIndex();
}

int TreeModel::rowCount(const QModelIndex& parent) const {
  return static_cast<int>(mirrorOf(parent)->children.size());
}

int TreeModel::columnCount(const QModelIndex&) const { return 1; }

QVariant TreeModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid()) return {};
  const auto& mirror = *mirrorOf(index);
  switch (role) {
    case Qt::DisplayRole: return toDisplay(mirror.text);
    case Qt::DecorationRole: {
      const auto kind = kindOf(mirror.key);
      return kind == Kind::Menu ? menu_ : kind == Kind::Submenu ? submenu_ : item_;
    }
    case Qt::AccessibleDescriptionRole:
      switch (kindOf(mirror.key)) {
        case Kind::Menu: return "main menu";
        case Kind::Submenu: return "submenu";
        default: return "item";
      }
    default: return {};
  }
}

}  // namespace nimbrel
