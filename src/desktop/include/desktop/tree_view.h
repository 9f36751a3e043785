#pragma once

#include <QTreeView>

#include "desktop/tree_model.h"

namespace nimbrel {

/// The document's tree on the screen.
class TreeView : public QTreeView {
  Q_OBJECT

 public:
  explicit TreeView(TreeModel& model, QWidget* parent = nullptr);

  /// Marks the node that the main window has selected and brings it into view; no signal.
  void showSelected(const Node* node);
  /// While the model changes, which node is current is told to nobody.
  void quietly(const std::function<void()>& change);
  /// Opens a small tree whole, of a large one the first levels.
  void openUp();

 signals:
  void nodeChosen(Node* node);
  void deletePressed();
  void contextMenuWanted(const QPoint& globalPosition);

 protected:
  void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;

 private:
  TreeModel& tree_;
  bool isOwnMove_ = false;
};

}  // namespace nimbrel
