#pragma once

#include <QLabel>
#include <QLineEdit>
#include <QToolButton>
#include <QWidget>

namespace nimbrel {

/// The bar above the tree in which the user types what to find. Hidden until it is opened.
class FindBar : public QWidget {
  Q_OBJECT

 public:
  explicit FindBar(QWidget* parent = nullptr);

  /// Shows the bar and puts the cursor into it.
  void open();
  QString text() const { return text_.text(); }
  /// Shows how many nodes were found.
  void setCount(std::size_t found);

 signals:
  void textChanged(const QString& text);
  void nextRequested(bool forward);
  /// The bar is hidden already.
  void closed();

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void close();

  QLineEdit text_;
  QLabel count_;
  QToolButton close_;
};

}  // namespace nimbrel
