#include "desktop/qt_asker.h"

#include <QColorDialog>
#include <QFileDialog>
#include <QFileInfo>
#include <QLoggingCategory>
#include <QMessageBox>
#include <QPushButton>
#include <QRegularExpression>
#include <QScopeGuard>
#include <algorithm>

#include "desktop/display_text.h"
#include "desktop/form_window.h"
#include "desktop/run_action.h"

namespace nimbrel {
namespace {

Q_LOGGING_CATEGORY(quietSteps, "nimbrel.steps", QtWarningMsg)

QMessageBox::Icon iconOf(BoxIcon icon) {
  switch (icon) {
    case BoxIcon::Critical: return QMessageBox::Critical;
    case BoxIcon::Question: return QMessageBox::Question;
    case BoxIcon::Information: return QMessageBox::Information;
    default: return QMessageBox::Warning;
  }
}

QMessageBox::StandardButton buttonOf(BoxButton button) {
  switch (button) {
    case BoxButton::Yes: return QMessageBox::Yes;
    case BoxButton::No: return QMessageBox::No;
    case BoxButton::Cancel: return QMessageBox::Cancel;
    case BoxButton::Help: return QMessageBox::Help;
    case BoxButton::Overwrite: return QMessageBox::Discard;
    case BoxButton::SaveAs: return QMessageBox::Save;
    case BoxButton::Reload: return QMessageBox::Reset;
    default: return QMessageBox::Ok;
  }
}

/// The caption of a button for which Qt has only the role; nullptr for the others.
const char* captionOf(BoxButton button) {
  switch (button) {
    case BoxButton::Overwrite: return "&Overwrite";
    case BoxButton::SaveAs: return "Save &As...";
    case BoxButton::Reload: return "&Reload";
    default: return nullptr;
  }
}

/// The answer of the Escape key and of the close box: the button that does the least.
BoxButton escapeOf(const MessageBox& box) {
  for (const auto button : {BoxButton::Cancel, BoxButton::No}) {
    if (std::ranges::find(box.buttons, button) != box.buttons.end()) return button;
  }
  return box.buttons.front();
}

}  // namespace

QString fileFilter(std::string_view filter) {
  const auto parts = toDisplay(filter).split('|');
  auto patterns = parts.value(1);
  auto description = parts.value(0);
  description.remove(QRegularExpression(R"(\s*\([^)]*\)\s*$)"));
  return description + " (" + patterns.replace(';', ' ') + ")";
}

/// Exists while a modal window is open.
class QtAsker::ModalScope {
 public:
  explicit ModalScope(QtAsker& asker) : asker_(asker) {
    if (asker_.modalCount_++ == 0 && asker_.onModalChange_) asker_.onModalChange_(true);
  }
  ModalScope(const ModalScope&) = delete;
  ModalScope& operator=(const ModalScope&) = delete;
  ~ModalScope() {
    if (--asker_.modalCount_ == 0 && asker_.onModalChange_) asker_.onModalChange_(false);
  }

 private:
  QtAsker& asker_;
};

QWidget* QtAsker::owner() const {
  const auto top =
      std::find_if(open_.rbegin(), open_.rend(), [](auto* window) { return window->isVisible(); });
  return top == open_.rend() ? main_ : *top;
}

void QtAsker::hideClosed() {
  for (auto* window : open_) {
    if (!window->form().isOpen) window->hide();
  }
}

BoxButton QtAsker::MsgBox(const MessageBox& box) {
  const ModalScope modal(*this);
  hideClosed();
  while (true) {
    QMessageBox window(iconOf(box.icon), toDisplay(box.title),
                       toDisplayWithPaths(box.text, box.paths).replace("\r\n", "\n").replace('\r', '\n'),
                       QMessageBox::NoButton, owner());
    window.setTextFormat(Qt::PlainText);
    for (const auto button : box.buttons) {
      auto* added = window.addButton(buttonOf(button));
      if (const auto* caption = captionOf(button)) added->setText(caption);
    }
    window.setDefaultButton(buttonOf(box.standard()));
    window.setEscapeButton(buttonOf(escapeOf(box)));
    window.setWindowModality(Qt::WindowModal);
    window.exec();
    const auto chosen = window.standardButton(window.clickedButton());
    const auto answer = std::ranges::find(box.buttons, chosen, buttonOf);
    if (answer == box.buttons.end()) return escapeOf(box);
    if (*answer != BoxButton::Help) return *answer;
    if (help_ != nullptr) help_->openTopic(box.helpTopic);
  }
}

std::optional<std::string> QtAsker::chooseFile(const FileDialog& dialog) {
  const ModalScope modal(*this);
  hideClosed();
  QFileDialog window(owner(), toDisplay(dialog.title), toDisplayPath(dialog.folder),
                     fileFilter(dialog.filter));
  if (!dialog.name.empty()) window.selectFile(toDisplayPath(dialog.name));
  if (dialog.kind == FileDialog::Save) {
    window.setAcceptMode(QFileDialog::AcceptSave);
    window.setOption(QFileDialog::DontConfirmOverwrite);  // the form asks with its own text
    const auto pattern = toDisplay(dialog.filter).section('|', 1);
    window.setDefaultSuffix(QFileInfo(pattern).suffix());
  } else {
    window.setFileMode(QFileDialog::AnyFile);  // the form also asks if there is no such file
  }
  if (window.exec() != QDialog::Accepted || window.selectedFiles().isEmpty()) return std::nullopt;
  return fromDisplayPath(window.selectedFiles().constFirst());
}

std::optional<std::uint32_t> QtAsker::chooseColour(std::uint32_t start) {
  const ModalScope modal(*this);
  constexpr unsigned byte = 8;
  const auto part = [start](unsigned number) { return static_cast<int>(start >> number * byte & 0xFFU); };
  const QColor first(part(0), part(1), part(2));
  const auto colour = QColorDialog::getColor(first, owner(), "Choose Color");
  if (!colour.isValid()) return std::nullopt;
  return static_cast<std::uint32_t>(colour.red()) | static_cast<std::uint32_t>(colour.green()) << byte |
         static_cast<std::uint32_t>(colour.blue()) << 2 * byte;
}

void QtAsker::ShowModal(Form& form) {
  const ModalScope modal(*this);
  hideClosed();
  FormWindow window(form, owner());
  QObject::connect(&window, &FormWindow::helpRequested, &window, [this] {
    if (help_ != nullptr) runAction([this] { help_->openContents(); });
  });
  window.setWindowModality(Qt::WindowModal);
  form.isOpen = true;
  open_.push_back(&window);
  const auto close = qScopeGuard([&] {
    form.isOpen = false;
    std::erase(open_, &window);
  });
  window.refresh();
  if (form.isOpen) window.exec();
}

void QtAsker::noteFailure(const Finding& finding) {
  qCInfo(quietSteps).noquote() << toDisplayPath(finding.path) << toDisplay(finding.text());
}

}  // namespace nimbrel
