#include "desktop/control_binding.h"

#include <QAbstractButton>
#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QShortcut>
#include <QSignalBlocker>
#include <QTabBar>
#include <QTimer>
#include <stdexcept>

#include "desktop/browser_view.h"
#include "desktop/display_text.h"
#include "desktop/folder_view.h"

namespace nimbrel {
namespace {

/// What all bindings have in common.
template <class Widget>
class Binding : public ControlBinding {
 public:
  Binding(Form& form, Control& control, Widget& widget, ActionRunner run)
      : form_(form), control_(control), widget_(widget), run_(std::move(run)) {}

  void refresh() override {
    const QSignalBlocker quiet(&widget_);
    if (widget_.isEnabled() != control_.enabled) widget_.setEnabled(control_.enabled);
    if (widget_.isHidden() == control_.visible) widget_.setVisible(control_.visible);
    refreshContent();
  }

 protected:
  virtual void refreshContent() = 0;

  QString text(std::string_view libraryText) const {
    return widget_.property("paths").toBool() ? toDisplayPath(libraryText) : toDisplay(libraryText);
  }
  std::string typed(const QString& displayText) const {
    return widget_.property("paths").toBool() ? fromDisplayPath(displayText) : fromDisplay(displayText);
  }
  /// The texts of forms contain CR LF line ends.
  QString lines(std::string_view libraryText) const {
    return text(libraryText).replace("\r\n", "\n").replace('\r', '\n');
  }

  Form& form_;
  Control& control_;
  Widget& widget_;
  ActionRunner run_;
};

/// A label with an event is shown as a link, which can also be reached by keyboard.
class LabelBinding : public Binding<QLabel> {
 public:
  LabelBinding(Form& form, Control& control, QLabel& label, ActionRunner run)
      : Binding(form, control, label, std::move(run)) {
    if (!control_.event) return;
    label.setTextFormat(Qt::RichText);
    label.setTextInteractionFlags(Qt::LinksAccessibleByMouse | Qt::LinksAccessibleByKeyboard);
    QObject::connect(&label, &QLabel::linkActivated, &label,
                     [this] { run_([this] { form_.click(control_); }); });
  }

 private:
  void refreshContent() override {
    auto wanted = lines(control_.text);
    if (control_.event) wanted = "<a href=\"#\">" + wanted.toHtmlEscaped() + "</a>";
    if (widget_.text() != wanted) widget_.setText(wanted);
    if (!control_.event && widget_.textFormat() != Qt::PlainText) widget_.setTextFormat(Qt::PlainText);
  }
};

class ButtonBinding : public Binding<QAbstractButton> {
 public:
  ButtonBinding(Form& form, Control& control, QAbstractButton& button, ActionRunner run)
      : Binding(form, control, button, std::move(run)) {
    QObject::connect(&button, &QAbstractButton::clicked, &button,
                     [this] { run_([this] { form_.click(control_); }); });
  }

 private:
  void refreshContent() override {
    const auto wanted = text(control_.text);
    if (!wanted.isEmpty() && widget_.text() != wanted) widget_.setText(wanted);
  }
};

/// A check box or a radio button.
class MarkBinding : public Binding<QAbstractButton> {
 public:
  MarkBinding(Form& form, Control& control, QAbstractButton& button, ActionRunner run)
      : Binding(form, control, button, std::move(run)) {
    button.setAutoExclusive(false);
    if (control.kind == ControlKind::Option) joinGroup();
    QObject::connect(&button, &QAbstractButton::toggled, &button, [this](bool checked) {
      if (control_.kind == ControlKind::Check) {
        run_([this, checked] { form_.check(control_, checked); });
      } else if (checked) {
        run_([this] { form_.click(control_); });
      }
    });
  }

 private:
  /// The arrow keys cycle through the options of a group.
  void joinGroup() {
    const auto name = QString("group%1").arg(control_.group);
    auto* window = widget_.window();
    auto* group = window->findChild<QButtonGroup*>(name, Qt::FindDirectChildrenOnly);
    if (group == nullptr) {
      group = new QButtonGroup(window);
      group->setObjectName(name);
    }
    group->addButton(&widget_);
  }

  void refreshContent() override {
    const auto wanted = text(control_.text);
    if (widget_.text() != wanted) widget_.setText(wanted);
    if (widget_.isChecked() == control_.value) return;
    // An exclusive group does not let its checked button be unchecked.
    if (widget_.group() != nullptr) widget_.group()->setExclusive(false);
    widget_.setChecked(control_.value);
    if (widget_.group() != nullptr) widget_.group()->setExclusive(true);
  }
};

class TextBinding : public Binding<QLineEdit> {
 public:
  TextBinding(Form& form, Control& control, QLineEdit& edit, ActionRunner run)
      : Binding(form, control, edit, std::move(run)) {
    QObject::connect(&edit, &QLineEdit::textEdited, &edit, [this](const QString& entry) {
      run_([this, entry] { form_.enter(control_, typed(entry)); });
    });
  }

 private:
  void refreshContent() override {
    // Different display texts may stand for the same library text: keep the one being typed.
    if (typed(widget_.text()) != control_.text) widget_.setText(text(control_.text));
  }
};

class ComboBinding : public Binding<QComboBox> {
 public:
  ComboBinding(Form& form, Control& control, QComboBox& box, ActionRunner run)
      : Binding(form, control, box, std::move(run)) {
    QObject::connect(&box, &QComboBox::activated, &box, [this](int index) {
      run_([this, index] { form_.choose(control_, {static_cast<std::size_t>(index)}); });
    });
  }

 private:
  void refreshContent() override {
    if (entries_ != control_.list) {
      entries_ = control_.list;
      widget_.clear();
      for (const auto& entry : entries_) widget_.addItem(text(entry));
    }
    const int index = control_.selected.empty() ? -1 : static_cast<int>(control_.selected.front());
    if (widget_.currentIndex() != index) widget_.setCurrentIndex(index);
  }

  std::vector<std::string> entries_;
};

class ListBinding : public Binding<QListWidget> {
 public:
  ListBinding(Form& form, Control& control, QListWidget& list, ActionRunner run)
      : Binding(form, control, list, std::move(run)) {
    list.setSelectionMode(control.manyAtOnce ? QAbstractItemView::ExtendedSelection
                                             : QAbstractItemView::SingleSelection);
    QObject::connect(&list, &QListWidget::itemSelectionChanged, &list,
                     [this] { run_([this] { form_.choose(control_, selectedRows()); }); });
    const auto doubled = [this] {
      if (control_.doubleClick) run_(control_.doubleClick);
    };
    QObject::connect(&list, &QListWidget::itemDoubleClicked, &list, doubled);
    for (const auto key : {Qt::Key_Return, Qt::Key_Enter}) {
      auto* shortcut = new QShortcut(key, &list);
      shortcut->setContext(Qt::WidgetShortcut);
      QObject::connect(shortcut, &QShortcut::activated, &list, doubled);
    }
  }

 private:
  std::vector<std::size_t> selectedRows() const {
    std::vector<std::size_t> rows;
    for (const auto& index : widget_.selectionModel()->selectedRows()) {
      rows.push_back(static_cast<std::size_t>(index.row()));
    }
    return rows;
  }

  void refreshContent() override {
    if (entries_ != control_.list) {
      entries_ = control_.list;
      widget_.clear();
      for (const auto& entry : entries_) widget_.addItem(text(entry));
    }
    if (selectedRows() == control_.selected) return;
    widget_.clearSelection();
    for (const auto row : control_.selected) widget_.item(static_cast<int>(row))->setSelected(true);
  }

  std::vector<std::string> entries_;
};

class FolderBinding : public Binding<FolderView> {
 public:
  FolderBinding(Form& form, Control& control, FolderView& view, ActionRunner run)
      : Binding(form, control, view, std::move(run)) {
    QObject::connect(&view, &FolderView::folderChosen, &view, [this](const QString& folder) {
      run_([this, folder] { form_.enter(control_, fromDisplayPath(folder)); });
    });
  }

 private:
  void refreshContent() override {
    if (fromDisplayPath(widget_.folder()) != control_.text) widget_.setFolder(toDisplayPath(control_.text));
  }
};

class TabsBinding : public Binding<QTabBar> {
 public:
  TabsBinding(Form& form, Control& control, QTabBar& tabs, ActionRunner run)
      : Binding(form, control, tabs, std::move(run)) {
    for (const auto& caption : control.list) tabs.addTab(toDisplay(caption));
    QObject::connect(&tabs, &QTabBar::currentChanged, &tabs, [this](int index) {
      run_([this, index] { form_.choose(control_, {static_cast<std::size_t>(index)}); });
    });
  }

 private:
  void refreshContent() override {
    const int index = control_.selected.empty() ? 0 : static_cast<int>(control_.selected.front());
    if (widget_.currentIndex() != index) widget_.setCurrentIndex(index);
  }
};

class FrameBinding : public Binding<QWidget> {
 public:
  using Binding::Binding;

 private:
  void refreshContent() override {
    auto* box = qobject_cast<QGroupBox*>(&widget_);
    if (box != nullptr && box->title() != text(control_.text)) box->setTitle(text(control_.text));
  }
};

class BrowserBinding : public Binding<BrowserView> {
 public:
  BrowserBinding(Form& form, Control& control, BrowserView& view, ActionRunner run)
      : Binding(form, control, view, std::move(run)) {
    QObject::connect(&view, &BrowserView::documentComplete, &view, [this] {
      if (control_.event) run_(control_.event);
    });
    QObject::connect(&view, &BrowserView::reloadRequested, &view, [this] {
      if (control_.reload) {
        run_(control_.reload);
      } else {
        widget_.navigate(control_.text);
      }
    });
  }

 private:
  void refreshContent() override {
    if (visits_ == control_.visits) return;
    visits_ = control_.visits;
    widget_.navigate(control_.text);
  }

  std::size_t visits_ = 0;
};

class TimerBinding : public ControlBinding {
 public:
  TimerBinding(Control& control, QObject& owner, ActionRunner run)
      : control_(control), timer_(new QTimer(&owner)) {
    timer_->setInterval(control.interval);
    QObject::connect(timer_, &QTimer::timeout, timer_,
                     [this, run = std::move(run)] { run([this] { control_.event(); }); });
  }

  TimerBinding(const TimerBinding&) = delete;
  TimerBinding& operator=(const TimerBinding&) = delete;
  /// Timers remove temporary files. If the window closes first, they do so now.
  ~TimerBinding() override {
    if (control_.value) runAction(control_.event);
  }

  void refresh() override {
    if (control_.value == timer_->isActive()) return;
    if (control_.value) {
      timer_->start();
    } else {
      timer_->stop();
    }
  }

 private:
  Control& control_;
  QTimer* timer_;
};

template <class Bound, class Widget>
std::unique_ptr<ControlBinding> bindAs(Form& form, Control& control, QWidget& widget, ActionRunner& run) {
  auto* fitting = qobject_cast<Widget*>(&widget);
  if (fitting == nullptr) return nullptr;
  return std::make_unique<Bound>(form, control, *fitting, std::move(run));
}

std::unique_ptr<ControlBinding> bindOfKind(Form& form, Control& control, QWidget& widget, ActionRunner& run) {
  switch (control.kind) {
    case ControlKind::Label: return bindAs<LabelBinding, QLabel>(form, control, widget, run);
    case ControlKind::Button: return bindAs<ButtonBinding, QAbstractButton>(form, control, widget, run);
    case ControlKind::Option:
    case ControlKind::Check: return bindAs<MarkBinding, QAbstractButton>(form, control, widget, run);
    case ControlKind::Text: return bindAs<TextBinding, QLineEdit>(form, control, widget, run);
    case ControlKind::List:
      if (auto bound = bindAs<ComboBinding, QComboBox>(form, control, widget, run)) return bound;
      return bindAs<ListBinding, QListWidget>(form, control, widget, run);
    case ControlKind::Folder: return bindAs<FolderBinding, FolderView>(form, control, widget, run);
    case ControlKind::Tabs: return bindAs<TabsBinding, QTabBar>(form, control, widget, run);
    case ControlKind::Frame: return bindAs<FrameBinding, QWidget>(form, control, widget, run);
    case ControlKind::Browser: return bindAs<BrowserBinding, BrowserView>(form, control, widget, run);
    case ControlKind::Timer: break;
  }
  return nullptr;
}

}  // namespace

std::unique_ptr<ControlBinding> bindControl(Form& form, Control& control, QWidget& widget, ActionRunner run) {
  if (auto bound = bindOfKind(form, control, widget, run)) return bound;
  throw std::logic_error(std::string(form.name) + ": no widget for " + std::string(control.name));
}

std::unique_ptr<ControlBinding> bindTimer(Control& control, QObject& owner, ActionRunner run) {
  return std::make_unique<TimerBinding>(control, owner, std::move(run));
}

}  // namespace nimbrel
