#pragma once

#include <QAbstractItemModel>
#include <QIcon>
#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

#include "model/tree.h"

namespace nimbrel {

/// The document's tree as a Qt model. It holds a copy of the keys and texts, since a command may change the tree in
/// many places before the model learns of it. `sync` then updates the model with the fewest changes, so that
/// expanded nodes stay expanded.
class TreeModel : public QAbstractItemModel {
  Q_OBJECT

 public:
  /// `tree` outlives the model.
  explicit TreeModel(Tree& tree, QObject* parent = nullptr);
  ~TreeModel() override;

  /// Call after a change. Linear in the size of the tree.
  void sync();
  /// Call after another document has been loaded.
  void reset();
  /// Call after a change of one node's text.
  void syncText(const Node& node);
  void setIcons(QIcon menu, QIcon submenu, QIcon item);

  QModelIndex indexOf(const Node* node) const;
  /// nullptr for an invalid index.
  Node* node(const QModelIndex& index) const;

  QModelIndex index(int row, int column, const QModelIndex& parent = {}) const override;
  QModelIndex parent(const QModelIndex& index) const override;
  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;

 private:
  struct Mirror;
  using Children = std::vector<std::unique_ptr<Mirror>>;

  Mirror* mirrorOf(const QModelIndex& index) const;
  QModelIndex indexOf(Mirror& mirror) const;
  std::unique_ptr<Mirror> copyOf(const Node& top, Mirror* parent);
  void syncChildren(Mirror& mirror, std::vector<Node*> nodes);
  void insert(Mirror& mirror, std::size_t at, const std::vector<Node*>& nodes);
  void remove(Mirror& mirror, std::size_t first, std::size_t last);
  void swap(Mirror& mirror, std::size_t first);
  void forget(const Mirror& top);

  Tree& tree_;
  std::unique_ptr<Mirror> top_;  ///< the parent of the roots
  std::unordered_map<std::string, Mirror*> byKey_;
  QIcon menu_, submenu_, item_;
};

}  // namespace nimbrel
