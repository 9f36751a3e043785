#pragma once

#include <QFrame>

class QLabel;
class QPushButton;

namespace nimbrel {

/// A bar above a page with a text and a button. Hidden at first.
class PageBar : public QFrame {
  Q_OBJECT

 public:
  PageBar(const QString& button, QWidget* parent);

  /// Shows the bar, tells a screen reader, and takes the focus from `page` if that has it.
  void tell(const QString& text, const QWidget& page);
  QString text() const;

 signals:
  void clicked();

 private:
  QLabel* text_;
  QPushButton* button_;
};

}  // namespace nimbrel
