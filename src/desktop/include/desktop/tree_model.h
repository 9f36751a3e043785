#pragma once

#include <QAbstractItemModel>
#include <QIcon>
#include <unordered_map>
#include <vector>

#include "editing/editor.h"

namespace nimbrel {

/// The document's tree as a Qt model. It listens to the editor, so that views keep their state through each change.
class TreeModel : public QAbstractItemModel {
  Q_OBJECT

 public:
  /// `editor` outlives the model.
  explicit TreeModel(Editor& editor, QObject* parent = nullptr);

  void setIcons(QIcon menu, QIcon submenu, QIcon item);

  /// Whether rows are coming or going at the moment. Views then may choose another current node on their own.
  bool isChanging() const { return isChanging_; }

  /// Invalid for nullptr.
  QModelIndex indexOf(const Node* node) const;
  /// nullptr for an invalid index.
  static const Node* node(const QModelIndex& index);

  QModelIndex index(int row, int column, const QModelIndex& parent = {}) const override;
  QModelIndex parent(const QModelIndex& index) const override;
  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  Qt::ItemFlags flags(const QModelIndex& index) const override;
  /// Only says what the user wants: the document, and with it this model, changes through the editor.
  bool setData(const QModelIndex& index, const QVariant& value, int role) override;

 signals:
  void renamed(const nimbrel::Node* node, const QString& name);

 private:
  /// The children of a node in order. The tree links siblings only to their neighbours, and views ask by row.
  struct Children {
    std::vector<const Node*> nodes;
    std::unordered_map<const Node*, int> rows;
  };

  void forget(const Node* top);
  void begin(const RowChange& change);
  void end(const RowChange& change);
  const Children& childrenOf(const Node* parent) const;

  Editor& editor_;
  mutable std::unordered_map<const Node*, Children>
      children_;  ///< by parent, nullptr for the roots; filled when asked for
  bool isChanging_ = false;
  QIcon menu_, submenu_, item_;
  std::vector<Connection> connections_;
};

}  // namespace nimbrel
