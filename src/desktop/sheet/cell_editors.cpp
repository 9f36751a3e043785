#include "desktop/sheet/cell_editors.h"

#include "desktop/display_text.h"

namespace nimbrel {

CellEditors::CellEditors(PropertySheet& sheet, QWidget& cells, IconSource icons, ActionRunner run)
    : sheet_(sheet),
      cells_(cells),
      icons_(std::move(icons)),
      run_(std::move(run)),
      entry_(&cells),
      list_(&cells) {
  list_.setObjectName("lstList");
  addButton(sheet.btnCombo, "drop-down", {}, "Open the list");
  addButton(sheet.btnFile, "browse-file", {}, "Choose Image File");
  addButton(sheet.btnColour, "pick-colour", {}, "Choose Color");
  addButton(sheet.btnFontSize, "font-size", {}, "Set Font Size");
  const auto replicate = "Copies the \"Normal\" state property value into the other two states";
  addButton(sheet.btnReplicate, "replicate", replicate, replicate);
  connectAll();
}

void CellEditors::addButton(Control& control, const char* icon, const QString& toolTip, const QString& name) {
  auto* button = new QToolButton(&cells_);
  button->setObjectName(toDisplay(control.name));
  button->setToolTip(toolTip);
  button->setAccessibleName(name);
  button->setFocusPolicy(Qt::NoFocus);  // keys go to the entry
  button->setCursor(Qt::ArrowCursor);
  button->setAutoFillBackground(true);
  button->hide();
  QObject::connect(button, &QToolButton::clicked, button, [this, &control] {
    run_([this, &control] { sheet_.click(control); });
    focusEntry();
  });
  buttons_.push_back({control, icon, button});
}

void CellEditors::connectAll() {
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

void CellEditors::setIconSize(int side) {
  constexpr int margin = 8;
  for (const auto& button : buttons_) button.widget->setIconSize(QSize(side - margin, side - margin));
}

void CellEditors::forgetIcons() {
  for (auto& button : buttons_) button.isDrawn = false;
  showButtons();
}

void CellEditors::showButtons() {
  for (auto& button : buttons_) {
    if (button.control.visible && !std::exchange(button.isDrawn, true)) {
      button.widget->setIcon(icons_(button.icon));
    }
    button.widget->setVisible(button.control.visible);
  }
}

bool CellEditors::isPath() const { return sheet_.row(sheet_.cursorRow()).Kind() == KindFile; }

Control* CellEditors::openList() const {
  for (auto* list : {&sheet_.lstList, &sheet_.lstSortedList}) {
    if (list->visible) return list;
  }
  return nullptr;
}

void CellEditors::place(const QRect& entry, const QRect& button, const QRect& replicate) {
  entry_.setGeometry(entry);
  for (const auto& one : buttons_) {
    one.widget->setGeometry(&one.control == &sheet_.btnReplicate ? replicate : button);
  }
}

void CellEditors::refresh(const QString& name, const QRect& listPlace) {
  if (sheet_.txtEntry.visible) {
    if (entry_.accessibleName() != name) entry_.setAccessibleName(name);
    entry_.setAccessibleDescription(toDisplay(sheet_.HelpLabel2.text));
    if (entry_.isReadOnly() != sheet_.entryIsReadOnly()) entry_.setReadOnly(sheet_.entryIsReadOnly());
    showText();
  }
  // Otherwise hiding the entry would move the focus to the next widget.
  if (!sheet_.txtEntry.visible && entry_.hasFocus()) cells_.parentWidget()->setFocus(Qt::OtherFocusReason);
  entry_.setVisible(sheet_.txtEntry.visible);
  showButtons();
  showList(listPlace);
}

/// Different display texts may stand for the same library text: keeps the one being typed.
void CellEditors::showText() {
  const auto typed = entry_.text();
  if ((isPath() ? fromDisplayPath(typed) : fromDisplay(typed)) == sheet_.txtEntry.text) return;
  entry_.setText(textOfCell());
}

QString CellEditors::textOfCell() const {
  return isPath() ? toDisplayPath(sheet_.txtEntry.text) : toDisplay(sheet_.txtEntry.text);
}

void CellEditors::begin() { entry_.setText(textOfCell()); }

void CellEditors::showList(const QRect& listPlace) {
  auto* open = openList();
  if (open == nullptr) {
    list_.hide();
  } else if (!list_.isVisible()) {
    list_.fill(open->list);
    list_.setCurrentText(toDisplay(sheet_.txtEntry.text));
    list_.setName(entry_.accessibleName());
    const QRect opener(entry_.mapToGlobal(QPoint()),
                       buttons_.front().widget->mapToGlobal(buttons_.front().widget->rect().bottomRight()));
    list_.open(listPlace, opener);
  }
}

void CellEditors::choose(int entry) {
  run_([&] {
    if (auto* list = openList()) sheet_.choose(*list, {static_cast<std::size_t>(entry)});
  });
  focusEntry();
}

/// Typing in a closed list takes the matching entry at once.
void CellEditors::search(const QString& typed) {
  if (!sheet_.btnCombo.visible) return;
  const auto& list =
      sheet_.row(sheet_.cursorRow()).Kind() == KindSortedList ? sheet_.lstSortedList : sheet_.lstList;
  list_.fill(list.list);
  list_.setCurrentText(toDisplay(sheet_.txtEntry.text));
  const int entry = list_.search(typed);
  if (entry >= 0) run_([&] { sheet_.type(list.list[static_cast<std::size_t>(entry)]); });
}

void CellEditors::pressButton() {
  for (const auto& button : buttons_) {
    if (button.control.visible && &button.control != &sheet_.btnReplicate) {
      button.widget->click();
      return;
    }
  }
}

void CellEditors::focusEntry() {
  if (entry_.isHidden()) return;
  entry_.setFocus(Qt::OtherFocusReason);
  if (sheet_.btnCombo.visible) {
    entry_.deselect();  // its text cannot be edited
  } else {
    entry_.selectAll();
  }
}

}  // namespace nimbrel
