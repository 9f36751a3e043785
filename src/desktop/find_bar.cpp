#include "desktop/find_bar.h"

#include <QGridLayout>
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
  by_.setObjectName("txtReplace");
  by_.setPlaceholderText("Replace by");
  by_.setAccessibleName("Replace by");
  where_.setObjectName("cboReplaceIn");
  where_.setAccessibleName("Replace in");
  where_.addItems(
      {"in all texts", "in names", "in addresses", "in tooltips", "in commands", "in image paths"});
  replace_.setObjectName("cmdReplace");
  replace_.setText("&Replace All");
  auto* layout = new QGridLayout(this);
  constexpr int margin = 3;  // pixels
  layout->setContentsMargins(margin, margin, margin, margin);
  layout->setSpacing(margin);
  layout->addWidget(&text_, 0, 0);
  layout->addWidget(&count_, 0, 1);
  layout->addWidget(&close_, 0, 2, Qt::AlignRight);
  layout->addWidget(&by_, 1, 0);
  layout->addWidget(&where_, 1, 1);
  layout->addWidget(&replace_, 1, 2);
  layout->setColumnStretch(0, 1);
  connect(&replace_, &QPushButton::clicked, this,
          [this] { emit replaceRequested(by_.text(), static_cast<TextKind>(where_.currentIndex())); });
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

void FindBar::setReplaced(std::size_t count) {
  count_.setText(QString("%1 replaced").arg(count));
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
