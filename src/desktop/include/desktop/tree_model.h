#pragma once

#include <QAbstractItemModel>
#include <QIcon>
#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

#include "model/tree.h"

namespace nimbrel {

/// The document's tree as Qt's views take it. It keeps a copy of keys and texts, since a command changes the tree
/// in many places before anyone is told; `sync` then brings the views after it with the fewest changes, so that
/// what is open stays open.
class TreeModel : public QAbstractItemModel {
  Q_OBJECT

 public:
  /// `tree` outlives the model.
  explicit TreeModel(Tree& tree, QObject* parent = nullptr);
  ~TreeModel() override;

  /// After a change. Linear in the tree.
  void sync();
  /// After another document came in: views begin anew.
  void reset();
  /// After another text of one node.
  void syncText(const Node& node);
  void setIcons(QIcon menu, QIcon submenu, QIcon item);

  QModelIndex indexOf(const Node* node) const;
  /// None for an invalid index.
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
  std::unique_ptr<Mirror> top_;  ///< stands above the roots
  std::unordered_map<std::string, Mirror*> byKey_;
  QIcon menu_, submenu_, item_;
};

}  // namespace nimbrel
