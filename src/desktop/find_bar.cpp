#include "desktop/find_bar.h"

#include <QHBoxLayout>
#include <QKeyEvent>

namespace nimbrel {

FindBar::FindBar(QWidget* parent) : QWidget(parent) {
  setObjectName("findBar");
  text_.setObjectName("txtFind");
  text_.setPlaceholderText("Find names, addresses, commands");
  text_.setAccessibleName("Find in the menu");
  count_.setObjectName("lblFound");
  close_.setText(QString(QChar(0x00D7)));
  close_.setAutoRaise(true);
  close_.setAccessibleName("Close the find bar");
  close_.setToolTip("Close (Esc)");
  auto* layout = new QHBoxLayout(this);
  constexpr int margin = 3;  // pixels
  layout->setContentsMargins(margin, margin, margin, margin);
  layout->addWidget(&text_, 1);
  layout->addWidget(&count_);
  layout->addWidget(&close_);
  connect(&text_, &QLineEdit::textChanged, this, &FindBar::textChanged);
  connect(&close_, &QToolButton::clicked, this, &FindBar::close);
  hide();
}

void FindBar::open() {
  show();
  text_.setFocus(Qt::ShortcutFocusReason);
  text_.selectAll();
  emit textChanged(text_.text());
}

void FindBar::close() {
  hide();
  emit closed();
}

void FindBar::setCount(std::size_t found) {
  count_.setText(text().isEmpty() ? QString()
                 : found == 1     ? QString("1 found")
                                  : QString("%1 found").arg(found));
  text_.setAccessibleDescription(count_.text());
}

void FindBar::keyPressEvent(QKeyEvent* event) {
  switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter: emit nextRequested((event->modifiers() & Qt::ShiftModifier) == 0); break;
    case Qt::Key_Escape: close(); break;
    default: QWidget::keyPressEvent(event);
  }
}

}  // namespace nimbrel
