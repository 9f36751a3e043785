#pragma once

#include <QLineEdit>

namespace nimbrel {

/// Commands that keys trigger while a cell is open.
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

/// Commits the text that an input method is composing. Called before anything that leaves the entry.
void endComposing();

/// The line edit over the open cell. While it is read-only, the space bar clicks the cell's button, and typed text
/// searches the list.
class EntryEdit : public QLineEdit {
  Q_OBJECT

 public:
  explicit EntryEdit(QWidget* parent);

 signals:
  void commandRequested(nimbrel::EntryCommand command);
  void clicked();
  void searchRequested(const QString& text);

 protected:
  bool event(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  bool focusNextPrevChild(bool next) override;
};

}  // namespace nimbrel
