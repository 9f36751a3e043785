#include "desktop/sheet/help_panel.h"

#include <QAccessibleWidget>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QStyleOptionFocusRect>
#include <QStylePainter>

#include "desktop/display_text.h"

namespace nimbrel {
namespace {

constexpr int margin = 4;    // pixels, so that texts do not touch the edge of the window
constexpr int linkGap = 13;  // pixels beside a link
constexpr int lowest = 16;   // pixels

/// The default blue is unreadable on a dark background.
QColor linkColour(const QPalette& palette) {
  constexpr int middle = 128;
  const auto link = palette.color(QPalette::Link);
  const bool isDark = palette.color(QPalette::Window).lightness() < middle;
  constexpr QRgb lightBlue = 0xFF8AB4F8;
  return isDark && link.lightness() <= middle ? QColor::fromRgb(lightBlue) : link;
}

/// A screen reader would read a QLabel as plain text.
class AccessibleLink : public QAccessibleWidget {
 public:
  explicit AccessibleLink(LinkLabel& link) : QAccessibleWidget(&link, QAccessible::Link), link_(link) {}

  QStringList actionNames() const override { return {pressAction(), setFocusAction()}; }
  void doAction(const QString& name) override {
    if (name == pressAction()) {
      emit link_.followed();
    } else {
      QAccessibleWidget::doAction(name);
    }
  }

 private:
  LinkLabel& link_;
};

QAccessibleInterface* accessibleLink(const QString&, QObject* object) {
  auto* link = qobject_cast<LinkLabel*>(object);
  return link == nullptr ? nullptr : new AccessibleLink(*link);
}

void installAccessibleLinks() {
  [[maybe_unused]] static const bool isInstalled = (QAccessible::installFactory(accessibleLink), true);
}

void setTextOf(QLabel& label, const QString& text) {
  if (label.text() != text) label.setText(text);
}

}  // namespace

LinkLabel::LinkLabel(QWidget* parent) : QLabel(parent) {
  installAccessibleLinks();
  setTextFormat(Qt::RichText);
  setFocusPolicy(Qt::TabFocus);  // a click leaves the focus to the entry
  connect(this, &QLabel::linkActivated, this, &LinkLabel::followed);
}

void LinkLabel::setLink(const QString& text) {
  const auto colour = linkColour(palette()).name();
  setTextOf(*this, "<a href=\"#\" style=\"color:" + colour + "\">" + text.toHtmlEscaped() + "</a>");
  setAccessibleName(text);
}

void LinkLabel::keyPressEvent(QKeyEvent* event) {
  const int key = event->key();
  if (key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Space) {
    emit followed();
  } else {
    QLabel::keyPressEvent(event);
  }
}

void LinkLabel::paintEvent(QPaintEvent* event) {
  QLabel::paintEvent(event);
  if (!hasFocus()) return;
  QStyleOptionFocusRect option;
  option.initFrom(this);
  QStylePainter(this).drawPrimitive(QStyle::PE_FrameFocusRect, option);
}

HelpPanel::HelpPanel(PropertySheet& sheet, ActionRunner run, QWidget* parent)
    : QWidget(parent),
      sheet_(sheet),
      run_(std::move(run)),
      caption_(this),
      text_(this),
      moreHelp_(this),
      example_(this) {
  setObjectName("HelpPanel");
  caption_.setObjectName("HelpLabel1");
  text_.setObjectName("HelpLabel2");
  for (auto* label : {&caption_, &text_}) label->setTextFormat(Qt::PlainText);
  QFont bold = font();
  bold.setBold(true);
  caption_.setFont(bold);
  text_.setWordWrap(true);
  text_.setAlignment(Qt::AlignTop | Qt::AlignLeft);
  setMinimumSize(1, lowest);
  prepareLink(moreHelp_, sheet.lblMoreHelpLink);
  prepareLink(example_, sheet.lblExamplesLink);
  example_.setToolTip("Click here for a live demonstration of the selected property");
  layOut();
}

/// The links are on the same line as the caption. The panel may cut off the text.
void HelpPanel::layOut() {
  caption_.setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
  text_.setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored);
  auto* line = new QHBoxLayout;
  line->setSpacing(linkGap);
  line->addWidget(&caption_, 1);
  line->addWidget(&moreHelp_);
  line->addWidget(&example_);
  line->addSpacing(linkGap - margin);
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(margin, 0, margin, 0);
  column->setSpacing(0);
  column->addLayout(line);
  column->addWidget(&text_, 1);
}

QSize HelpPanel::sizeHint() const {
  constexpr int lines = 4;
  constexpr int spacing = 2;  // pixels
  return {QWidget::sizeHint().width(), lines * (fontMetrics().height() + spacing)};
}

void HelpPanel::prepareLink(LinkLabel& link, Control& control) {
  link.setObjectName(toDisplay(control.name));
  connect(&link, &LinkLabel::followed, &link,
          [this, &control] { run_([this, &control] { sheet_.click(control); }); });
}

void HelpPanel::showLink(LinkLabel& link, const Control& control) {
  link.setLink(toDisplay(control.text));
  link.setVisible(control.visible);
}

void HelpPanel::refresh() {
  setTextOf(caption_, toDisplay(sheet_.HelpLabel1.text));
  const auto text = toDisplay(sheet_.HelpLabel2.text);
  setTextOf(text_, text);
  const auto toolTip = text.isEmpty() ? text : "<p>" + text.toHtmlEscaped() + "</p>";
  if (text_.toolTip() != toolTip) text_.setToolTip(toolTip);
  showLink(moreHelp_, sheet_.lblMoreHelpLink);
  showLink(example_, sheet_.lblExamplesLink);
}

bool HelpPanel::focusLinks() {
  for (auto* link : {&moreHelp_, &example_}) {
    if (!link->isHidden()) {
      link->setFocus(Qt::TabFocusReason);
      return true;
    }
  }
  return false;
}

void HelpPanel::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() == QEvent::PaletteChange) refresh();
}

}  // namespace nimbrel
