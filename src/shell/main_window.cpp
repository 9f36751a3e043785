#include "shell/main_window.h"

#include <algorithm>
#include <array>
#include <utility>

#include "forms/addresses.h"
#include "properties/element_values.h"
#include "shell/keys.h"
#include "text/product.h"

namespace nimbrel {

/// What each command does.
struct CommandHandler {
  std::string_view name;
  void (*run)(frmMain&);

  static const CommandHandler* find(std::string_view command);
};

const CommandHandler* CommandHandler::find(std::string_view command) {
  static constexpr auto handlers = std::to_array<CommandHandler>({
      {"mnuFileNew", [](frmMain& w) { w.mnuFileNew(); }},
      {"mnuFileOpen", [](frmMain& w) { w.mnuFileOpen(); }},
      {"mnuFileSave", [](frmMain& w) { w.mnuFileSave(); }},
      {"mnuFileSaveAs", [](frmMain& w) { w.mnuFileSaveAs(); }},
      {"mnuFileMRU1", [](frmMain& w) { w.mnuFileMRU(0); }},
      {"mnuFileMRU2", [](frmMain& w) { w.mnuFileMRU(1); }},
      {"mnuFileMRU3", [](frmMain& w) { w.mnuFileMRU(2); }},
      {"mnuFileMRU4", [](frmMain& w) { w.mnuFileMRU(3); }},
      {"mnuFileExit", [](frmMain& w) { w.QueryClose(); }},
      {"mnuEditUndo", [](frmMain& w) { w.mnuEditUndo(); }},
      {"mnuEditRedo", [](frmMain& w) { w.mnuEditRedo(); }},
      {"mnuEditCut", [](frmMain& w) { w.mnuEditCut(); }},
      {"mnuEditCopy", [](frmMain& w) { w.mnuEditCopy(); }},
      {"mnuEditPaste", [](frmMain& w) { w.mnuEditPaste(); }},
      {"mnuEditDuplicate", [](frmMain& w) { w.mnuEditDuplicate(); }},
      {"mnuEditRename", [](frmMain& w) { w.isRenaming = w.selected() != nullptr; }},
      {"mnuEditFind", [](frmMain& w) { w.isFinding = true; }},
      {"mnuEditFindNext", [](frmMain& w) { w.findNext(true); }},
      {"mnuEditFindPrevious", [](frmMain& w) { w.findNext(false); }},
      {"mnuEditResetProperty", [](frmMain& w) { w.mnuEditReset(true); }},
      {"mnuEditResetElement", [](frmMain& w) { w.mnuEditReset(false); }},
      {"mnuItemAddItem", [](frmMain& w) { w.mnuItemAddItem(); }},
      {"mnuItemDeleteItem", [](frmMain& w) { w.mnuItemDeleteItem(); }},
      {"mnuItemMoveItemUp", [](frmMain& w) { w.mnuItemMove(true); }},
      {"mnuItemMoveItemDown", [](frmMain& w) { w.mnuItemMove(false); }},
      {"mnuSubmenuAddSubmenu", [](frmMain& w) { w.mnuSubmenuAddSubmenu(); }},
      {"mnuSubmenuDeleteSubmenu", [](frmMain& w) { w.mnuSubmenuDeleteSubmenu(); }},
      {"mnuStylePickStyle", [](frmMain& w) { w.mnuStylePickStyle(); }},
      {"mnuStyleApplyStyle", [](frmMain& w) { w.mnuStyleApplyStyle(); }},
      {"mnuStyleSaveStyle", [](frmMain& w) { w.mnuStyleSaveStyle(); }},
      {"mnuStyleOpenStyleLibrary", [](frmMain& w) { w.mnuStyleOpenStyleLibrary(); }},
      {"mnuToolsPreview", [](frmMain& w) { w.mnuToolsPreview(); }},
      {"mnuToolsCompileMenu", [](frmMain& w) { w.mnuToolsCompileMenu(); }},
      {"mnuToolsInsertMenuIntoWebpage", [](frmMain& w) { w.mnuToolsInsertMenuIntoWebpage(); }},
      {"mnuToolsCompileProperties", [](frmMain& w) { w.mnuToolsCompileProperties(); }},
      {"mnuToolsOptions", [](frmMain&) {}},
      {"mnuToolsShowTipOnStartup", [](frmMain& w) { w.mnuToolsShowTipOnStartup(); }},
      {"mnuToolsShowPreviewOnStartup", [](frmMain& w) { w.mnuToolsShowPreviewOnStartup(); }},
      {"mnuHelpContents", [](frmMain& w) { w.ports.help.openContents(); }},
      {"mnuHelpSearchForHelpOn", [](frmMain& w) { w.ports.help.openSearch(); }},
      {"mnuHelpHowDoI", [](frmMain& w) { w.ports.help.openTopic(2280); }},
      {"mnuHelpTipOfTheDay", [](frmMain& w) { w.mnuHelpTipOfTheDay(); }},
      {"mnuHelpPerformanceIssues", [](frmMain& w) { w.ports.help.openTopic(2300); }},
      {"mnuHelpVisitTolvaneOnTheWeb", [](frmMain& w) { OpenWithShell(w.ports.opener, addresses::home); }},
      {"mnuHelpOnlineSupportCenter", [](frmMain& w) { OpenWithShell(w.ports.opener, addresses::support); }},
      {"mnuHelpAbout", [](frmMain& w) { w.mnuHelpAbout(); }},
  });
  constexpr auto handles = [](std::string_view entry) {
    return std::ranges::find(handlers, entry, &CommandHandler::name) != handlers.end();
  };
  static_assert(std::ranges::all_of(menuBar(), [handles](const MenuEntry& entry) {
    return entry.level == 0 || entry.caption == "-" || handles(entry.name);
  }));
  const auto* found = std::ranges::find(handlers, command, &CommandHandler::name);
  return found == handlers.end() ? nullptr : found;
}

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
  showHistory();
}

/// The entries for undo and redo name what they would change.
void frmMain::showHistory() {
  const auto show = [this](EntryName entry, std::string_view verb,
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
  const auto command = commandOfEntry(name).empty() ? commandOfKey(name) : commandOfEntry(name);
  const auto* handler = CommandHandler::find(command);
  if (handler == nullptr) return false;
  handler->run(*this);
  return true;
}

bool frmMain::canRun(std::string_view name) const {
  const auto* entry = commands.find(name);
  return entry != nullptr && entry->enabled && entry->visible && !commandOfEntry(name).empty();
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

void frmMain::select(const Node* node) { selectedKey_ = node == nullptr ? std::string() : node->Key; }

Kind frmMain::selectedKind() const { return kindOf(selectedKey_); }

const Element* frmMain::selectedElement() const { return document.ElementColl.find(selectedKey_); }

void frmMain::SelectNode(const Node* node) {
  LeaveCells();
  if (node == nullptr) return;
  select(node);
  refill(*node);
  EnableCommands(kindOf(node->Key));
}

/// Carries out a change of the author. Its spots are the present selection if the caller has set none.
void frmMain::apply(Edit edit) {
  if (edit.before.key.empty()) edit.before.key = selectedKey_;
  if (edit.after.key.empty()) edit.after = edit.before;
  editor.apply(std::move(edit));
}

/// Shows a place that undo or redo returns to.
void frmMain::show(const Spot& spot) {
  SelectNode(document.tvTreeView.find(spot.key));
  auto* sheet = visibleSheet();
  if (spot.row >= 0 && sheet != nullptr) sheet->ShowCell(spot.row, spot.column);
}

/// Fills the sheet for the kind of the node with its element, and hides the other sheets.
void frmMain::refill(const Node& node) {
  for (auto* sheet : {&prctlMenu, &prctlSubmenu, &prctlItem}) sheet->isOpen = false;
  const auto* element = document.element(node);
  if (element == nullptr) return;
  auto& sheet = sheetOf(kindOf(node.Key));
  std::visit([&](const auto& object) { PutValuesToPropertyControl(object, sheet); }, *element);
  sheet.isOpen = true;
}

void frmMain::RefreshCurrentSheet() {
  if (const auto* node = selected()) {
    refill(*node);
  } else {
    for (auto* sheet : {&prctlMenu, &prctlSubmenu, &prctlItem}) sheet->isOpen = false;
  }
}

void frmMain::EnableCommands(Kind kind) {
  commands.enablePaste(!clipboard.tvCopyTree.empty());
  const bool isItem = kind == Kind::Item;
  const bool isSubmenu = kind == Kind::Submenu;
  commands.enable("mnuEditCut", isItem || isSubmenu);
  commands.enable("mnuEditCopy", isItem || isSubmenu);
  commands.enable("mnuEditDuplicate", isItem);
  commands.enable("mnuItemDeleteItem", isItem);
  if (isItem) {
    enableMoves();
    commands.enable("mnuItemPopupMoveItemUp", canMoveUp(*selected()));
    commands.enable("mnuItemPopupMoveItemDown", canMoveDown(*selected()));
  } else {
    commands.enable("mnuItemMoveItemUp", false);
    commands.enable("mnuItemMoveItemDown", false);
  }
  commands.enable("mnuSubmenuAddSubmenu", isItem);
  commands.enable("mnuSubmenuDeleteSubmenu", isSubmenu);
  enableApply(kind);
}

void frmMain::enableMoves() {
  commands.enable("mnuItemMoveItemUp", canMoveUp(*selected()));
  commands.enable("mnuItemMoveItemDown", canMoveDown(*selected()));
}

void frmMain::enableApply(Kind kind) {
  const bool on = picking.PickedStyleKind == (kind == Kind::Item ? itemStyle : containerStyle);
  commands.enable("mnuStyleApplyStyle", on);
  switch (kind) {
    case Kind::Menu: commands.enable("mnuMenuPopupApplyStyle", on); break;
    case Kind::Submenu: commands.enable("mnuSubmenuPopupApplyStyle", on); break;
    default: commands.enable("mnuItemPopupApplyStyle", on); break;
  }
}

/// Stores a row of a sheet in the selected element. Ignores a sheet of another kind, whose cell stayed open while its
/// element was removed.
void frmMain::sheetChanged(Kind kind, int ordinal) {
  const auto* old = selectedElement();
  if (old == nullptr || kindOf(*old) != kind) return;
  const auto& sheet = sheetOf(kind);
  const auto& node = *selected();
  Element element = *old;
  std::visit([&](auto& object) { GetValueFromPropertyControl(object, sheet, ordinal); }, element);
  Edit edit{std::string(sheet.row(ordinal).Caption)};
  edit.before = {selectedKey_, ordinal, sheet.cursorColumn()};
  auto text = ordinal == nameRow(kind) ? NodeText(element) : node.Text;
  edit.set(document, node, std::move(element), std::move(text));
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
  SelectNode(selected());
}

std::string_view frmMain::contextMenu() const {
  switch (selectedKind()) {
    case Kind::Menu: return "mnuMenuPopup";
    case Kind::Submenu: return "mnuSubmenuPopup";
    case Kind::Item: return "mnuItemPopup";
    default: return {};
  }
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
