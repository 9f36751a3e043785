#include "desktop/sheet/entry_edit.h"

#include <QGuiApplication>
#include <QInputMethod>
#include <QKeyEvent>
#include <QMouseEvent>
#include <array>
#include <limits>
#include <optional>

namespace nimbrel {
namespace {

struct KeyCommand {
  int key;
  Qt::KeyboardModifiers modifiers;
  EntryCommand command;
};

constexpr std::array keyCommands{
    KeyCommand{Qt::Key_Return, Qt::NoModifier, EntryCommand::Below},
    KeyCommand{Qt::Key_Enter, Qt::NoModifier, EntryCommand::Below},
    KeyCommand{Qt::Key_Down, Qt::NoModifier, EntryCommand::Below},
    KeyCommand{Qt::Key_Up, Qt::NoModifier, EntryCommand::Above},
    KeyCommand{Qt::Key_PageDown, Qt::NoModifier, EntryCommand::PageDown},
    KeyCommand{Qt::Key_PageUp, Qt::NoModifier, EntryCommand::PageUp},
    KeyCommand{Qt::Key_Escape, Qt::NoModifier, EntryCommand::TakeBack},
    KeyCommand{Qt::Key_F4, Qt::NoModifier, EntryCommand::PressButton},
    KeyCommand{Qt::Key_Down, Qt::AltModifier, EntryCommand::PressButton},
    KeyCommand{Qt::Key_R, Qt::ControlModifier, EntryCommand::Replicate},
    KeyCommand{Qt::Key_Tab, Qt::ControlModifier, EntryCommand::GoToLinks},
    KeyCommand{Qt::Key_F6, Qt::NoModifier, EntryCommand::GoToLinks},
};

std::optional<EntryCommand> commandOf(const QKeyEvent& event) {
  const auto modifiers = event.modifiers() & ~Qt::KeypadModifier;
  for (const auto& entry : keyCommands) {
    if (entry.key == event.key() && entry.modifiers == modifiers) return entry.command;
  }
  return std::nullopt;
}

/// In the main window these shortcuts act on the tree.
bool isEditing(const QKeyEvent& event) {
  return event.matches(QKeySequence::Cut) || event.matches(QKeySequence::Paste) ||
         event.matches(QKeySequence::Undo) || event.matches(QKeySequence::Redo) ||
         event.matches(QKeySequence::Delete);
}

bool isTyped(const QKeyEvent& event) {
  return !event.text().isEmpty() && event.text().front().isPrint() &&
         (event.modifiers() & (Qt::ControlModifier | Qt::AltModifier)) == 0;
}

}  // namespace

/// Only if needed: on some systems without a keyboard, committing crashes the input method.
void endComposing() {
  if (qobject_cast<EntryEdit*>(QGuiApplication::focusObject()) != nullptr) {
    QGuiApplication::inputMethod()->commit();
  }
}

EntryEdit::EntryEdit(QWidget* parent) : QLineEdit(parent) {
  setObjectName("txtEntry");
  setFrame(false);
  setMaxLength(std::numeric_limits<int>::max());
  setFocusPolicy(Qt::ClickFocus);  // in the tab order the table stands for the entry
  hide();
}

bool EntryEdit::event(QEvent* event) {
  if (event->type() == QEvent::ShortcutOverride) {
    const auto& key = static_cast<QKeyEvent&>(*event);
    if (commandOf(key) || isEditing(key)) {
      event->accept();
      return true;
    }
  }
  return QLineEdit::event(event);
}

void EntryEdit::keyPressEvent(QKeyEvent* event) {
  if (const auto command = commandOf(*event)) {
    emit commandRequested(*command);
  } else if (isReadOnly() && event->key() == Qt::Key_Space) {
    emit commandRequested(EntryCommand::PressButton);
  } else if (isReadOnly() && isTyped(*event)) {
    emit searchRequested(event->text());
  } else {
    QLineEdit::keyPressEvent(event);
  }
}

void EntryEdit::mousePressEvent(QMouseEvent* event) {
  QLineEdit::mousePressEvent(event);
  if (event->button() == Qt::LeftButton) emit clicked();
}

bool EntryEdit::focusNextPrevChild(bool next) {
  emit commandRequested(next ? EntryCommand::Next : EntryCommand::Previous);
  return true;
}

}  // namespace nimbrel
