#pragma once

#include <QTreeView>
#include <vector>

#include "desktop/tree_model.h"

namespace nimbrel {

/// The document's tree on the screen.
class TreeView : public QTreeView {
  Q_OBJECT

 public:
  explicit TreeView(TreeModel& model, QWidget* parent = nullptr);

  /// Makes a node the current one and scrolls to it, without a signal.
  void showSelected(const Node* node);
  /// Hides all rows but those of these nodes and the nodes above them. nullptr shows all rows.
  void filter(const std::vector<const Node*>* nodes);
  /// Expands all of a small tree, or the first levels of a large one.
  void expandInitially();

 signals:
  void nodeChosen(const nimbrel::Node* node);
  void deletePressed();
  void contextMenuRequested(const QPoint& globalPosition);

 protected:
  void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;

 private:
  TreeModel& tree_;
  bool isSettingCurrent_ = false;
  bool isFiltered_ = false;
};

}  // namespace nimbrel
