#pragma once

#include <QTreeView>
#include <cstdint>
#include <vector>

#include "desktop/tree_model.h"

namespace nimbrel {

/// The document's tree on the screen.
class TreeView : public QTreeView {
  Q_OBJECT

 public:
  /// How the user ends a name of an outline: Enter goes on with the next item, Tab and Shift+Tab change the level.
  enum class NameEnd : std::uint8_t { Next, Deeper, Higher, Cancel };

  explicit TreeView(TreeModel& model, QWidget* parent = nullptr);

  /// Selects these nodes, of which the first becomes the current one, and scrolls to that, without a signal.
  void showSelected(const Nodes& nodes);
  /// Opens the name of the current node. While names are typed like an outline, the keys that end one mean more.
  void editName(bool asOutline);
  /// Hides all rows but those of these nodes and the nodes above them. nullptr shows all rows.
  void filter(const std::vector<const Node*>* nodes);
  /// Expands all of a small tree, or the first levels of a large one.
  void expandInitially();

 signals:
  /// The user has selected these nodes, the current one first.
  void nodesChosen(const nimbrel::Nodes& nodes);
  /// A name of an outline is done. `isTyped`: the user has changed it.
  void nameEnded(nimbrel::TreeView::NameEnd end, bool isTyped);
  void deletePressed();
  void contextMenuRequested(const QPoint& globalPosition);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) override;
  void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;

 private:
  void choose();

  TreeModel& tree_;
  Nodes chosen_;  ///< as last shown or told
  bool isOutline_ = false;
  bool isSettingCurrent_ = false;
  bool isFiltered_ = false;
};

}  // namespace nimbrel
