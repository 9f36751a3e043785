#pragma once

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QToolButton>
#include <QWidget>

#include "editing/find.h"

namespace nimbrel {

/// The bar above the tree in which the user types what to find, and what to replace it by. Hidden until it is opened.
class FindBar : public QWidget {
  Q_OBJECT

 public:
  explicit FindBar(QWidget* parent = nullptr);

  /// Shows the bar and puts the cursor into it.
  void open();
  QString text() const { return text_.text(); }
  /// Shows how many nodes were found.
  void setCount(std::size_t found);
  void setReplaced(std::size_t count);

 signals:
  void textChanged(const QString& text);
  void nextRequested(bool forward);
  void replaceRequested(const QString& by, nimbrel::TextKind kind);
  /// The bar is hidden already.
  void closed();

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void close();

  QLineEdit text_;
  QLabel count_;
  QToolButton close_;
  QLineEdit by_;
  QComboBox where_;
  QPushButton replace_;
};

}  // namespace nimbrel
