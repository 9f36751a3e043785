#pragma once

#include <QLineEdit>

namespace nimbrel {

/// What the author wants from the keyboard while a cell is open.
enum class EntryCommand {
  Next,
  Previous,
  Below,
  Above,
  PageDown,
  PageUp,
  TakeBack,
  PressButton,  ///< open the list or the chooser
  Replicate,
  GoToLinks,
};

/// What an input method is composing counts as typed, ahead of all that leaves the entry.
void endComposing();

/// The entry over the open cell. One that is for reading presses the cell's button with the space bar and hands
/// on what is typed.
class EntryEdit : public QLineEdit {
  Q_OBJECT

 public:
  explicit EntryEdit(QWidget* parent);

 signals:
  void commanded(nimbrel::EntryCommand command);
  void clicked();
  void searched(const QString& text);

 protected:
  bool event(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  bool focusNextPrevChild(bool next) override;
};

}  // namespace nimbrel
