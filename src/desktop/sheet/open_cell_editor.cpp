#include "desktop/sheet/open_cell_editor.h"

#include "desktop/display_text.h"

namespace nimbrel {
namespace {

constexpr int entryMargin = 2;  // pixels, of a QLineEdit without frame

}  // namespace

OpenCellEditor::OpenCellEditor(PropertySheet& sheet, IconSource icons, ActionRunner run, QWidget* parent)
    : QWidget(parent),
      sheet_(sheet),
      icons_(std::move(icons)),
      run_(std::move(run)),
      entry_(this),
      swatch_(this),
      list_(this) {
  hide();
  list_.setObjectName("lstList");
  const auto replicate = "Copies the \"Normal\" state property value into the other two states";
  addButton(sheet.btnReplicate, "replicate", replicate, replicate);
  addButton(sheet.btnCombo, "drop-down", {}, "Open the list");
  addButton(sheet.btnFile, "browse-file", {}, "Choose Image File");
  addButton(sheet.btnColour, "pick-colour", {}, "Choose Color");
  addButton(sheet.btnFontSize, "font-size", {}, "Set Font Size");
  setFocusProxy(&entry_);
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins({});
  row->setSpacing(0);
  row->addWidget(&swatch_);
  row->addSpacing(inset - entryMargin);
  row->addWidget(&entry_, 1);
  for (const auto& button : buttons_) {
    if (button.widget != &this->replicate()) row->addWidget(button.widget);
  }
  connectAll();
}

void OpenCellEditor::addButton(Control& control, const char* icon, const QString& toolTip,
                               const QString& name) {
  auto* button = new QToolButton(this);
  button->setObjectName(toDisplay(control.name));
  button->setToolTip(toolTip);
  button->setAccessibleName(name);
  button->setFocusPolicy(Qt::NoFocus);  // keys go to the entry
  button->setCursor(Qt::ArrowCursor);
  button->setAutoFillBackground(true);
  button->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Ignored);
  button->hide();
  QObject::connect(button, &QToolButton::clicked, button, [this, &control] {
    run_([this, &control] { sheet_.click(control); });
    focusEntry();
  });
  buttons_.push_back({control, icon, button});
}

void OpenCellEditor::connectAll() {
  QObject::connect(&entry_, &QLineEdit::textEdited, &entry_, [this](const QString& text) {
    run_([&] { sheet_.type(isPath() ? fromDisplayPath(text) : fromDisplay(text)); });
  });
  QObject::connect(&entry_, &EntryEdit::clicked, &entry_, [this] {
    if (sheet_.btnCombo.visible) run_([this] { sheet_.txtEntry_Click(); });
  });
  QObject::connect(&entry_, &EntryEdit::searchRequested, &entry_,
                   [this](const QString& typed) { search(typed); });
  QObject::connect(&list_, &ListPopup::chosen, &list_, [this](int entry) { choose(entry); });
  QObject::connect(&list_, &ListPopup::chosenByTab, &list_, [this](int entry, bool forward) {
    choose(entry);
    emit entry_.commandRequested(forward ? EntryCommand::Next : EntryCommand::Previous);
  });
  QObject::connect(&list_, &ListPopup::closed, &list_, [this] {
    if (openList() != nullptr) run_([this] { sheet_.btnCombo_Click(); });
  });
}

void OpenCellEditor::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  constexpr int margin = 8;
  const int side = height();
  swatch_.setFixedWidth(side);
  for (const auto& button : buttons_) {
    button.widget->setFixedWidth(side);
    button.widget->setIconSize(QSize(side - margin, side - margin));
  }
}

/// Each icon is drawn again when it is needed.
void OpenCellEditor::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() != QEvent::PaletteChange && event->type() != QEvent::StyleChange) return;
  for (auto& button : buttons_) button.isDrawn = false;
  showButtons();
}

void OpenCellEditor::showButtons() {
  for (auto& button : buttons_) {
    if (button.control.visible && !std::exchange(button.isDrawn, true)) {
      button.widget->setIcon(icons_(button.icon));
    }
    button.widget->setVisible(button.control.visible);
  }
  swatch_.setVisible(sheet_.btnColour.visible);
}

bool OpenCellEditor::isPath() const { return sheet_.row(sheet_.cursorRow()).Kind() == KindFile; }

Control* OpenCellEditor::openList() const {
  for (auto* list : {&sheet_.lstList, &sheet_.lstSortedList}) {
    if (list->visible) return list;
  }
  return nullptr;
}

void OpenCellEditor::showEntry(const QString& name) {
  if (sheet_.txtEntry.visible) {
    if (entry_.accessibleName() != name) entry_.setAccessibleName(name);
    entry_.setAccessibleDescription(toDisplay(sheet_.HelpLabel2.text));
    if (entry_.isReadOnly() != sheet_.entryIsReadOnly()) entry_.setReadOnly(sheet_.entryIsReadOnly());
    showText();
  }
  entry_.setVisible(sheet_.txtEntry.visible);
}

void OpenCellEditor::refresh(const QString& name) {
  showEntry(name);
  showButtons();
  showList();
}

/// Different display texts may stand for the same library text: keeps the one being typed.
void OpenCellEditor::showText() {
  const auto typed = entry_.text();
  if ((isPath() ? fromDisplayPath(typed) : fromDisplay(typed)) == sheet_.txtEntry.text) return;
  entry_.setText(textOfCell());
}

QString OpenCellEditor::textOfCell() const {
  return isPath() ? toDisplayPath(sheet_.txtEntry.text) : toDisplay(sheet_.txtEntry.text);
}

void OpenCellEditor::begin() { entry_.setText(textOfCell()); }

void OpenCellEditor::showList() {
  auto* open = openList();
  if (open == nullptr) {
    list_.hide();
  } else if (!list_.isVisible()) {
    list_.fill(open->list);
    list_.setCurrentText(toDisplay(sheet_.txtEntry.text));
    list_.setName(entry_.accessibleName());
    list_.open({mapToGlobal(QPoint()), size()});
  }
}

void OpenCellEditor::choose(int entry) {
  run_([&] {
    if (auto* list = openList()) sheet_.choose(*list, {static_cast<std::size_t>(entry)});
  });
  focusEntry();
}

/// Typing in a closed list takes the matching entry at once.
void OpenCellEditor::search(const QString& typed) {
  if (!sheet_.btnCombo.visible) return;
  const auto& list =
      sheet_.row(sheet_.cursorRow()).Kind() == KindSortedList ? sheet_.lstSortedList : sheet_.lstList;
  list_.fill(list.list);
  list_.setCurrentText(toDisplay(sheet_.txtEntry.text));
  const int entry = list_.search(typed);
  if (entry >= 0) run_([&] { sheet_.type(list.list[static_cast<std::size_t>(entry)]); });
}

void OpenCellEditor::pressButton() {
  for (const auto& button : buttons_) {
    if (button.control.visible && &button.control != &sheet_.btnReplicate) {
      button.widget->click();
      return;
    }
  }
}

void OpenCellEditor::focusEntry() {
  if (entry_.isHidden()) return;
  entry_.setFocus(Qt::OtherFocusReason);
  if (sheet_.btnCombo.visible) {
    entry_.deselect();  // its text cannot be edited
  } else {
    entry_.selectAll();
  }
}

}  // namespace nimbrel
