#pragma once

#include <QWidget>

namespace nimbrel {

/// The bar between table and help. A shadow of it follows the pointer; the bar goes there in the end. With the
/// focus it takes the keys Up and Down.
class HelpSplitter : public QWidget {
  Q_OBJECT

 public:
  explicit HelpSplitter(QWidget* parent);

 signals:
  void dragBegun();
  /// `twips` is where its top is to be from now on.
  void moved(int twips);

 protected:
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;

 private:
  /// In twips too, as all of the sheet's geometry.
  int draggedTop(int pixelsFromTop) const;

  QWidget shadow_;
};

}  // namespace nimbrel
