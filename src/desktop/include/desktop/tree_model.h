#pragma once

#include <QAbstractItemModel>
#include <QIcon>
#include <QMimeData>
#include <functional>
#include <unordered_map>
#include <vector>

#include "editing/editor.h"
#include "model/structure_editing.h"

namespace nimbrel {

/// Nodes of this program that are dragged. Another program sees only their formats.
class DraggedNodes : public QMimeData {
  Q_OBJECT

 public:
  explicit DraggedNodes(Nodes dragged) : nodes(std::move(dragged)) {}
  const Nodes nodes;
};

/// What dragging needs to know of the document.
struct DragRules {
  std::function<bool(const Nodes&, const Node& target, Drop, bool copies)> canDrop;
  std::function<void(QMimeData&, const Nodes&)> describe;  ///< adds the formats for other programs
};

/// The document's tree as a Qt model. It listens to the editor, so that views keep their state through each change.
class TreeModel : public QAbstractItemModel {
  Q_OBJECT

 public:
  /// `editor` outlives the model.
  explicit TreeModel(Editor& editor, QObject* parent = nullptr);

  void setDragRules(DragRules rules) { dragRules_ = std::move(rules); }
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
  Qt::DropActions supportedDropActions() const override;
  QStringList mimeTypes() const override;
  QMimeData* mimeData(const QModelIndexList& indexes) const override;
  bool canDropMimeData(const QMimeData* data, Qt::DropAction action, int row, int column,
                       const QModelIndex& parent) const override;
  /// Like `setData`.
  bool dropMimeData(const QMimeData* data, Qt::DropAction action, int row, int column,
                    const QModelIndex& parent) override;

 signals:
  void renamed(const nimbrel::Node* node, const QString& name);
  void dropped(const QMimeData* data, const nimbrel::Node* target, nimbrel::Drop drop, bool copies);

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

  struct Target {
    const Node* node;
    Drop drop;
  };
  Target targetOf(int row, const QModelIndex& parent) const;

  Editor& editor_;
  DragRules dragRules_;
  mutable std::unordered_map<const Node*, Children>
      children_;  ///< by parent, nullptr for the roots; filled when asked for
  bool isChanging_ = false;
  QIcon menu_, submenu_, item_;
  std::vector<Connection> connections_;
};

}  // namespace nimbrel
