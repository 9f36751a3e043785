#include "desktop/form_window.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QCloseEvent>
#include <QFile>
#include <QLineEdit>
#include <QTabBar>
#include <QUiLoader>
#include <QVBoxLayout>
#include <algorithm>
#include <stdexcept>

#include "desktop/browser_view.h"
#include "desktop/display_text.h"
#include "desktop/folder_view.h"

namespace nimbrel {
namespace {

/// Creates our own widget classes, and those that QUiLoader does not know.
class Loader : public QUiLoader {
 public:
  QWidget* createWidget(const QString& className, QWidget* parent, const QString& name) override {
    QWidget* made = nullptr;
    if (className == "BrowserView") made = new BrowserView(parent);
    if (className == "FolderView") made = new FolderView(parent);
    if (className == "QTabBar") made = new QTabBar(parent);
    if (made == nullptr) return QUiLoader::createWidget(className, parent, name);
    made->setObjectName(name);
    return made;
  }
};

QString named(std::string_view name) {
  return QString::fromLatin1(name.data(), static_cast<qsizetype>(name.size()));
}

}  // namespace

FormWindow::FormWindow(Form& form, QWidget* parent) : QDialog(parent), form_(form) {
  QFile layout(":/forms/" + named(form.name) + ".ui");
  Loader loader;
  QWidget* content = layout.open(QIODevice::ReadOnly) ? loader.load(&layout, this) : nullptr;
  if (content == nullptr) throw std::logic_error("no window for " + std::string(form.name));
  auto* whole = new QVBoxLayout(this);
  whole->addWidget(content);
  setObjectName(named(form.name));
  const QFontMetrics letters(font());
  constexpr int drawnFor = 15;  // pixels, the height of the font that the layouts were designed with
  resize(content->size() * std::max(1.0, static_cast<double>(letters.height()) / drawnFor));
  setWindowFlag(Qt::WindowContextHelpButtonHint, false);
  bind();
}

void FormWindow::bind() {
  const auto run = [this](const Action& action) { runAction(action); };
  for (auto* control : form_.controls()) {
    auto* widget = findChild<QWidget*>(named(control->name));
    if (control->kind == ControlKind::Timer) {
      bindings_.push_back(bindTimer(*control, *this, run));
    } else if (widget != nullptr) {
      bindings_.push_back(bindControl(form_, *control, *widget, run));
    } else if (control->visible && control->kind != ControlKind::Label) {  // hidden labels only hold state
      throw std::logic_error(std::string(form_.name) + ": nothing shows " + std::string(control->name));
    }
  }
}

void FormWindow::runAction(const Action& action) {
  nimbrel::runAction(action, {[this] { refresh(); }, [this] { emit actionFinished(); }});
}

void FormWindow::refresh() {
  if (!form_.isOpen && isVisible()) hide();  // first, so that a modal window closes even if the rest throws
  if (windowTitle() != toDisplay(form_.caption)) setWindowTitle(toDisplay(form_.caption));
  for (const auto& binding : bindings_) binding->refresh();
  growToText();
  focus();
}

/// Texts may be longer and the system font larger than the layout was designed for.
void FormWindow::growToText() {
  const auto room = screen()->availableSize();
  const int needed = layout()->hasHeightForWidth() ? layout()->totalHeightForWidth(width())
                                                   : layout()->totalMinimumSize().height();
  const int high = std::min(needed, room.height());
  if (height() < high) resize(width(), high);
}

void FormWindow::focus() {
  if (form_.toFocus == nullptr) return;
  auto* widget = findChild<QWidget*>(named(form_.toFocus->name));
  form_.toFocus = nullptr;
  if (widget == nullptr) return;
  widget->setFocus();
  if (auto* edit = qobject_cast<QLineEdit*>(widget)) edit->selectAll();
}

void FormWindow::closeEvent(QCloseEvent* event) {
  runAction([this] { form_.QueryClose(); });
  event->setAccepted(!form_.isOpen);
}

/// Called for the Escape key: clicks the cancel button if there is one, else acts as the close box.
void FormWindow::reject() {
  runAction([this] {
    if (auto* cancel = form_.find(form_.cancelButton)) {
      form_.click(*cancel);
    } else {
      form_.QueryClose();
    }
  });
}

/// Lists and pages handle the Enter key themselves: it must not press the default button as well.
bool FormWindow::isEnterForContent(int key) const {
  if (key != Qt::Key_Return && key != Qt::Key_Enter) return false;
  for (auto* widget = focusWidget(); widget != nullptr && widget != this; widget = widget->parentWidget()) {
    if (qobject_cast<QAbstractItemView*>(widget) || qobject_cast<BrowserView*>(widget)) return true;
  }
  return false;
}

void FormWindow::keyPressEvent(QKeyEvent* event) {
  if (isEnterForContent(event->key())) return;
  if (event->key() == Qt::Key_F1) {
    emit helpRequested();
    return;
  }
  QDialog::keyPressEvent(event);
}

}  // namespace nimbrel
