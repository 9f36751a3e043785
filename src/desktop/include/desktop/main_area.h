#pragma once

#include <QLabel>
#include <QWidget>
#include <vector>

namespace nimbrel {

/// Tree and sheet beside each other, with the grip between them, laid out by the main window's own rules.
class MainArea : public QWidget {
  Q_OBJECT

 public:
  /// All sheets stand in one place; one at a time is visible.
  MainArea(QWidget& tree, std::vector<QWidget*> sheets, QWidget* parent = nullptr);

  /// Where the tree ends, pixels.
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
  bool isPlaced_ = false;  ///< by the author; else it keeps its part of the width
  bool isDragged_ = false;
};

}  // namespace nimbrel
