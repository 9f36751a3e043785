#include "shell/main_window.h"

#include <algorithm>
#include <span>
#include <utility>

#include "properties/element_values.h"
#include "shell/command_table.h"
#include "shell/keys.h"
#include "text/product.h"

namespace nimbrel {

namespace {

/// The row with the name of the element.
int nameRow(Kind sheet) {
  switch (sheet) {
    case Kind::Menu: return cellOf<MenuObj>(&MenuObj::menuname).row;
    case Kind::Submenu: return cellOf<SubmenuObj>(&SubmenuObj::SubmenuName).row;
    default: return cellOf<ItemObj>(&ItemObj::ItemName1).row;
  }
}

}  // namespace

frmMain::frmMain(Ports& p, std::string programFolder)
    : ports(p),
      state{.programFolder = std::move(programFolder)},
      liveExamples(state.programFolder),
      browser(ports.previews, ports.asker, state.programFolder, [this] { CreatePreviewFile(); }),
      prctlMenu(menuTable(), sheetPorts(), liveExamples),
      prctlSubmenu(submenuTable(), sheetPorts(), liveExamples),
      prctlItem(itemTable(), sheetPorts(), liveExamples) {
  bindSheets();
  listen();
  if (!ports.stateFolder.empty()) keepForRecovery();
  RegisterFileAssociations();
  readGeometry();
}

SheetPorts frmMain::sheetPorts() {
  return {ports.asker, ports.help, ports.fonts, state.FilePath, state.tmpFontSize};
}

template <class E>
void putStandards(PropertySheet& sheet) {
  E standard;
  SetDefaultValues(standard);
  PutStandardsToPropertyControl(standard, sheet);
}

void frmMain::bindSheets() {
  putStandards<MenuObj>(prctlMenu);
  putStandards<SubmenuObj>(prctlSubmenu);
  putStandards<ItemObj>(prctlItem);
  prctlMenu.Change = [this](int ordinal) { sheetChanged(Kind::Menu, ordinal); };
  prctlSubmenu.Change = [this](int ordinal) { sheetChanged(Kind::Submenu, ordinal); };
  prctlItem.Change = [this](int ordinal) { sheetChanged(Kind::Item, ordinal); };
}

void frmMain::listen() {
  connections_.push_back(editor.dirtyChanged.connect([this](bool isDirty) { state.IsDirty = isDirty; }));
  connections_.push_back(editor.historyChanged.connect([this] { showHistory(); }));
  connections_.push_back(editor.edited.connect([this](const Edit& edit) {
    // Quirk: a change of the settings does not make the preview outdated.
    const bool isOfSettings =
        edit.steps.size() == 1 && std::holds_alternative<SettingsStep>(edit.steps.front());
    if (!isOfSettings) outdatePreview();
  }));
  connections_.push_back(editor.documentReplaced.connect([this] { numbers.clear(); }));
  showHistory();
}

/// The entries for undo and redo name what they would change.
void frmMain::showHistory() {
  const auto show = [this](std::string_view entry, std::string_view verb,
                           const std::optional<std::string_view>& name) {
    commands.enable(entry, name.has_value());
    auto& caption = commands.entry(entry).caption;
    caption = verb;
    if (name) caption.append(" ").append(*name);
  };
  show("mnuEditUndo", "&Undo", editor.undoName());
  show("mnuEditRedo", "&Redo", editor.redoName());
}

bool frmMain::run(std::string_view name) {
  const auto* command = commandOfEntry(name);
  if (command == nullptr) command = commandOfKey(name);
  if (command == nullptr) return false;
  command->run(*this);
  return true;
}

bool frmMain::canRun(std::string_view name) const {
  const auto* entry = commands.find(name);
  return entry != nullptr && entry->enabled && entry->visible && commandOfEntry(name) != nullptr;
}

PropertySheet& frmMain::sheetOf(Kind kind) {
  switch (kind) {
    case Kind::Menu: return prctlMenu;
    case Kind::Submenu: return prctlSubmenu;
    default: return prctlItem;
  }
}

PropertySheet* frmMain::visibleSheet() {
  for (auto* sheet : {&prctlMenu, &prctlSubmenu, &prctlItem}) {
    if (sheet->isOpen) return sheet;
  }
  return nullptr;
}

void frmMain::LeaveCells() {
  for (auto* sheet : {&prctlMenu, &prctlSubmenu, &prctlItem}) sheet->LeaveCell();
}

void frmMain::select(const Node* node) {
  selectedKey_ = node == nullptr ? std::string() : node->Key;
  otherKeys_.clear();
}

Nodes frmMain::selection() const {
  Nodes nodes;
  if (selected() == nullptr) return nodes;
  nodes.push_back(selected());
  for (const auto& key : otherKeys_) {
    if (const auto* node = document.tvTreeView.find(key)) nodes.push_back(node);
  }
  return nodes;
}

Spot frmMain::spot() const { return {.key = selectedKey_, .others = otherKeys_}; }

Kind frmMain::selectedKind() const { return kindOf(selectedKey_); }

const Element* frmMain::selectedElement() const { return document.ElementColl.find(selectedKey_); }

void frmMain::SelectNode(const Node* node) { SelectNodes(node == nullptr ? Nodes() : Nodes{node}); }

void frmMain::SelectNodes(const Nodes& nodes) {
  LeaveCells();
  if (nodes.empty()) return;
  select(nodes.front());
  for (const auto* other : std::span(nodes).subspan(1)) otherKeys_.push_back(other->Key);
  refill(*nodes.front());
  EnableCommands(selectedKind());
}

Nodes frmMain::selectedOf(Kind kind) const {
  auto nodes = selection();
  std::erase_if(nodes, [&](const Node* node) {
    return kindOf(node->Key) != kind || document.element(*node) == nullptr;
  });
  return nodes;
}

/// Carries out a change of the author. Its spots are the present selection if the caller has set none.
void frmMain::apply(Edit edit) {
  if (edit.before.key.empty()) edit.before = spot();
  if (edit.after.key.empty()) edit.after = edit.before;
  editor.apply(std::move(edit));
}

/// Shows a place that undo or redo returns to.
void frmMain::show(const Spot& spot) {
  SelectNode(document.tvTreeView.find(spot.key));
  if (!spot.others.empty()) {
    otherKeys_ = spot.others;
    SelectNodes(selection());
  }
  auto* sheet = visibleSheet();
  if (spot.row >= 0 && sheet != nullptr) sheet->ShowCell(spot.row, spot.column);
}

/// Fills the sheet for the kind of the node with its element, and hides the other sheets.
void frmMain::refill(const Node& node) {
  for (auto* sheet : {&prctlMenu, &prctlSubmenu, &prctlItem}) sheet->isOpen = false;
  const auto* element = document.element(node);
  if (element == nullptr) return;
  const auto kind = kindOf(node.Key);
  auto& sheet = sheetOf(kind);
  std::visit([&](const auto& object) { PutValuesToPropertyControl(object, sheet); }, *element);
  for (const auto& key : otherKeys_) {
    const auto* other = kindOf(key) == kind ? document.ElementColl.find(key) : nullptr;
    if (other != nullptr)
      std::visit([&](const auto& object) { AddValuesToPropertyControl(object, sheet); }, *other);
  }
  if (!otherKeys_.empty()) sheet.RefreshPropertyValues();
  sheet.isOpen = true;
}

void frmMain::RefreshCurrentSheet() {
  if (const auto* node = selected()) {
    refill(*node);
  } else {
    for (auto* sheet : {&prctlMenu, &prctlSubmenu, &prctlItem}) sheet->isOpen = false;
  }
}

/// Quirk: the entries of the context menus for other kinds keep their states, but for Paste.
void frmMain::EnableCommands(Kind kind) {
  for (const auto& command : menuBar()) {
    if (command.enabledWhen != nullptr) commands.enable(command.name, command.enabledWhen(*this));
  }
  for (const auto& menu : contextMenus()) {
    for (const auto& entry : menu.entries) {
      const auto* command = commandOfEntry(entry.command);
      if (command == nullptr || command->enabledWhen == nullptr) continue;
      if (menu.kind == kind || command->name == "mnuEditPaste") {
        commands.enable(entry.name, command->enabledWhen(*this));
      }
    }
  }
}

/// Enables or disables Paste wherever it is.
void frmMain::enablePaste(bool enabled) {
  commands.enable("mnuEditPaste", enabled);
  for (const auto& menu : contextMenus()) {
    for (const auto& entry : menu.entries) {
      if (entry.command == "mnuEditPaste") commands.enable(entry.name, enabled);
    }
  }
}

/// Stores a row of a sheet in all selected elements of its kind. Ignores a sheet of another kind, whose cell stayed open while its
/// element was removed.
void frmMain::sheetChanged(Kind kind, int ordinal) {
  const auto* old = selectedElement();
  if (old == nullptr || kindOf(*old) != kind) return;
  const auto& sheet = sheetOf(kind);
  Edit edit{std::string(sheet.row(ordinal).Caption)};
  edit.before = {selectedKey_, ordinal, sheet.cursorColumn(), otherKeys_};
  for (const auto* node : selectedOf(kind)) {
    Element element = *document.element(*node);
    std::visit([&](auto& object) { GetValueFromPropertyControl(object, sheet, ordinal); }, element);
    auto text = ordinal == nameRow(kind) ? NodeText(element) : node->Text;
    edit.set(document, *node, std::move(element), std::move(text));
  }
  apply(std::move(edit));
}

void frmMain::tvTreeView_NodeClick(const Node* node) {
  LeaveCells();
  SelectNode(node);
}

void frmMain::tvTreeView_KeyUp(int key) {
  if (key == keys::Delete) {
    switch (selectedKind()) {
      case Kind::Item: mnuItemDeleteItem(); break;
      case Kind::Submenu: mnuSubmenuDeleteSubmenu(); break;
      default: break;
    }
  }
  SelectNodes(selection());
}

std::string_view frmMain::contextMenu() const {
  const auto menus = contextMenus();
  const auto found = std::ranges::find(menus, selectedKind(), &ContextMenu::kind);
  return found == menus.end() ? std::string_view() : found->name;
}

bool frmMain::Form_Resize(Geometry& window, bool minimised) const {
  if (minimised || window.width >= smallestFormWidth) return false;
  window.width = smallestFormWidth;
  return true;
}

void frmMain::setTitle(std::string_view documentName) {
  title =
      std::string(productTitle) + " ver " + std::string(productVersion) + " - " + std::string(documentName);
}

}  // namespace nimbrel
