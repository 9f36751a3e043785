#pragma once

#include <QWidget>

namespace nimbrel {

/// The splitter between table and help. While it is dragged, a shadow follows the pointer. The keys Up and Down move
/// it while it has the focus.
class HelpSplitter : public QWidget {
  Q_OBJECT

 public:
  explicit HelpSplitter(QWidget* parent);

 signals:
  void dragStarted();
  /// `twips` is its new top.
  void moved(int twips);

 protected:
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;

 private:
  /// Returns twips.
  int draggedTop(int pixelsFromTop) const;

  QWidget shadow_;
};

}  // namespace nimbrel
