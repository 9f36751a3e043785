#include "shell/main_window.h"

#include <algorithm>
#include <array>
#include <utility>

#include "platform/keys.h"
#include "properties/element_values.h"
#include "shell/addresses.h"
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
      {"mnuEditCut", [](frmMain& w) { w.mnuEditCut(); }},
      {"mnuEditCopy", [](frmMain& w) { w.mnuEditCopy(); }},
      {"mnuEditPaste", [](frmMain& w) { w.mnuEditPaste(); }},
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
      liveExamples(state),
      browser(ports.previews, ports.asker, state, [this] { CreatePreviewFile(); }),
      prctlMenu(menuTable(), ports, state, liveExamples),
      prctlSubmenu(submenuTable(), ports, state, liveExamples),
      prctlItem(itemTable(), ports, state, liveExamples) {
  state.programFolder = std::move(programFolder);
  bindSheets();
  RegisterFileAssociations();
  readGeometry();
}

void frmMain::bindSheets() {
  prctlMenu.Change = [this](int ordinal) { sheetChanged(Kind::Menu, ordinal); };
  prctlSubmenu.Change = [this](int ordinal) { sheetChanged(Kind::Submenu, ordinal); };
  prctlItem.Change = [this](int ordinal) { sheetChanged(Kind::Item, ordinal); };
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

void frmMain::SetIsDirty() {
  state.IsDirty = true;
  outdatePreview();
}

void frmMain::select(Node* node) { selected = CurrentNode = node; }

void frmMain::SelectNode(Node* node) {
  LeaveCells();
  if (node == nullptr) return;
  select(node);
  refill(*node);
  EnableCommands(kindOf(node->Key));
}

/// Fills the sheet for the kind of the node with its element, and hides the other sheets.
void frmMain::refill(Node& node) {
  for (auto* sheet : {&prctlMenu, &prctlSubmenu, &prctlItem}) sheet->isOpen = false;
  const auto* element = document.element(node);
  if (element == nullptr) return;
  auto& sheet = sheetOf(kindOf(node.Key));
  std::visit([&](const auto& object) { PutValuesToPropertyControl(object, sheet); }, *element);
  sheet.isOpen = true;
}

void frmMain::RefreshCurrentSheet() {
  CurrentNode = selected;
  if (selected != nullptr) {
    refill(*selected);
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
  commands.enable("mnuItemDeleteItem", isItem);
  if (isItem) {
    enableMoves();
    commands.enable("mnuItemPopupMoveItemUp", canMoveUp(*selected));
    commands.enable("mnuItemPopupMoveItemDown", canMoveDown(*selected));
  } else {
    commands.enable("mnuItemMoveItemUp", false);
    commands.enable("mnuItemMoveItemDown", false);
  }
  commands.enable("mnuSubmenuAddSubmenu", isItem);
  commands.enable("mnuSubmenuDeleteSubmenu", isSubmenu);
  enableApply(kind);
}

void frmMain::enableMoves() {
  commands.enable("mnuItemMoveItemUp", canMoveUp(*selected));
  commands.enable("mnuItemMoveItemDown", canMoveDown(*selected));
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

/// Stores a row of a sheet in the current element. Ignores a sheet of another kind, whose cell stayed open while its
/// element was removed.
void frmMain::sheetChanged(Kind sheet, int ordinal) {
  auto* element = CurrentNode == nullptr ? nullptr : document.element(*CurrentNode);
  if (element == nullptr || kindOf(*element) != sheet) return;
  std::visit([&](auto& object) { GetValueFromPropertyControl(object, sheetOf(sheet), ordinal); }, *element);
  if (ordinal == nameRow(sheet)) CurrentNode->Text = NodeText(*element);
  SetIsDirty();
}

void frmMain::tvTreeView_NodeClick(Node* node) {
  LeaveCells();
  SelectNode(node);
}

void frmMain::tvTreeView_KeyUp(int key) {
  if (key == keys::Delete && CurrentNode != nullptr) {
    switch (kindOf(CurrentNode->Key)) {
      case Kind::Item: mnuItemDeleteItem(); break;
      case Kind::Submenu: mnuSubmenuDeleteSubmenu(); break;
      default: break;
    }
  }
  SelectNode(selected);
}

std::string_view frmMain::contextMenu() const {
  switch (CurrentNode == nullptr ? Kind::None : kindOf(CurrentNode->Key)) {
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
