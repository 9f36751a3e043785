#pragma once

#include <QSplitter>

namespace nimbrel {

/// A splitter between two panes that the keyboard reaches too: the arrow keys move it while it has the focus. While it is
/// dragged, a bar follows the pointer, also nearer to the edges than the panes allow; on release the splitter snaps back.
class PaneSplitter : public QSplitter {
  Q_OBJECT

 public:
  /// The bar comes as near to the edges as `barMargin` pixels.
  PaneSplitter(Qt::Orientation orientation, int barMargin, QWidget* parent = nullptr);

  /// Adds both panes. `name` is what a screen reader calls the splitter.
  void setPanes(QWidget& first, QWidget& second, const QString& name);

 signals:
  /// The user is about to move the splitter.
  void dragStarted();

 protected:
  QSplitterHandle* createHandle() override;

 private:
  friend class PaneSplitterHandle;
  int barMargin_;
};

/// The bar between the panes.
class PaneSplitterHandle : public QSplitterHandle {
  Q_OBJECT

 public:
  explicit PaneSplitterHandle(PaneSplitter& splitter);

 protected:
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  bool isAcross() const { return orientation() == Qt::Horizontal; }
  int along(const QPoint& point) const { return isAcross() ? point.x() : point.y(); }
  /// Where the bar is while the pointer is at `global`, pixels from the left or upper edge.
  int barAt(const QPoint& global) const;
  /// Moves the splitter to `place`, pixels from the left or upper edge.
  void put(int place);

  PaneSplitter& splitter_;
  int grip_ = -1;  ///< pixels from the edge of the bar to where it was gripped; -1 while it is not dragged
};

}  // namespace nimbrel
