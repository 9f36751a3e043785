#pragma once

#include <QLabel>
#include <QWidget>
#include <vector>

namespace nimbrel {

/// The tree and the sheet side by side with a splitter grip between them, laid out by `SizeControls`.
class MainArea : public QWidget {
  Q_OBJECT

 public:
  /// All sheets share one place; at most one of them is visible.
  MainArea(QWidget& tree, std::vector<QWidget*> sheets, QWidget* parent = nullptr);

  /// The right edge of the tree, pixels.
  int splitter() const { return splitter_; }
  void setSplitter(int pixels);

 protected:
  void resizeEvent(QResizeEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void layOut();
  bool drag(QEvent& event);

  QWidget& tree_;
  std::vector<QWidget*> sheets_;
  QLabel title_;
  QWidget grip_;
  QWidget bar_;  ///< follows the pointer during a drag
  int splitter_ = 0;
  bool isPlaced_ = false;  ///< by the user; until then it keeps its share of the width
  bool isDragged_ = false;
};

}  // namespace nimbrel
