#include "desktop/page_bar.h"

#include <QAccessible>
#include <QApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

namespace nimbrel {

PageBar::PageBar(const QString& button, QWidget* parent)
    : QFrame(parent), text_(new QLabel(this)), button_(new QPushButton(button, this)) {
  setFrameShape(QFrame::StyledPanel);
  setAutoFillBackground(true);
  setBackgroundRole(QPalette::ToolTipBase);
  setForegroundRole(QPalette::ToolTipText);
  text_->setTextFormat(Qt::PlainText);
  text_->setWordWrap(true);
  text_->setForegroundRole(QPalette::ToolTipText);
  auto* layout = new QHBoxLayout(this);
  layout->addWidget(text_, 1);
  layout->addWidget(button_, 0, Qt::AlignTop);
  connect(button_, &QPushButton::clicked, this, &PageBar::clicked);
  hide();
}

QString PageBar::text() const { return text_->text(); }

void PageBar::tell(const QString& text, const QWidget& page) {
  const bool isNew = isHidden() || text_->text() != text;
  text_->setText(text);
  setAccessibleName(text);
  button_->setAccessibleDescription(text);
  show();
  if (!isNew) return;
  QAccessibleEvent alert(this, QAccessible::Alert);
  QAccessible::updateAccessibility(&alert);
  // A page that hangs would keep the keyboard.
  const auto* focused = QApplication::focusWidget();
  if (focused != nullptr && (focused == &page || page.isAncestorOf(focused))) button_->setFocus();
}

}  // namespace nimbrel
