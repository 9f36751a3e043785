#include "shell/command_table.h"

#include <algorithm>
#include <array>

#include "forms/addresses.h"
#include "shell/main_window.h"

namespace nimbrel {

/// The table of commands. A member of it can reach the private handlers of the window.
struct CommandTable {
  using W = frmMain;

  template <auto handler, auto... arguments>
  static void run(W& window) {
    (window.*handler)(arguments...);
  }

  static bool canUndo(const W& w) { return w.editor.undoName().has_value(); }
  static bool canRedo(const W& w) { return w.editor.redoName().has_value(); }
  static bool hasItem(const W& w) { return w.selectedKind() == Kind::Item; }
  static bool hasSubmenu(const W& w) { return w.selectedKind() == Kind::Submenu; }
  static bool canCopy(const W& w) { return hasItem(w) || hasSubmenu(w); }
  static bool canPaste(const W& w) {
    return !w.clipboard.tvCopyTree.empty() || w.ports.clipboard.hasForeign();
  }
  static bool canMove(const W& w, bool up, bool (*canMoveOne)(const Node&)) {
    if (!hasItem(w)) return false;
    return w.otherKeys_.empty() ? canMoveOne(*w.selected()) : !w.passed(up).empty();
  }
  static bool canMoveUp(const W& w) { return canMove(w, true, nimbrel::canMoveUp); }
  static bool canMoveDown(const W& w) { return canMove(w, false, nimbrel::canMoveDown); }
  static bool canIndent(const W& w) { return w.indentTarget() != nullptr; }
  static bool canOutdent(const W& w) { return w.outdentTarget() != nullptr; }
  static bool canApplyStyle(const W& w) {
    return w.picking.PickedStyleKind == (hasItem(w) ? itemStyle : containerStyle);
  }

  // clang-format off
  static constexpr auto bar = std::to_array<Command>({
      {"mnuFile", "&File", {}, 1510, nullptr, nullptr, Plain, 0},
      {"mnuFileNew", "&New", "Ctrl+N", 1510, run<&W::mnuFileNew>},
      {"mnuFileOpen", "&Open...", "Ctrl+O", 1510, run<&W::mnuFileOpen>},
      {"mnuFileSave", "&Save", "Ctrl+S", 1510, run<&W::mnuFileSave>},
      {"mnuFileSaveAs", "Save &As...", "Ctrl+Shift+S", 1510, run<&W::mnuFileSaveAs>},
      {"mnuFileBar0", "-", {}, 1510, nullptr, nullptr, Hidden},
      {"mnuFileMRU1", "", {}, 1510, run<&W::mnuFileMRU, 0>, nullptr, Hidden},
      {"mnuFileMRU2", "", {}, 1510, run<&W::mnuFileMRU, 1>, nullptr, Hidden},
      {"mnuFileMRU3", "", {}, 1510, run<&W::mnuFileMRU, 2>, nullptr, Hidden},
      {"mnuFileMRU4", "", {}, 1510, run<&W::mnuFileMRU, 3>, nullptr, Hidden},
      {"mnuFileBar1", "-", {}, 1510},
      {"mnuFileExit", "E&xit", {}, 1510, [](W& w) { w.QueryClose(); }},
      {"mnuEdit", "&Edit", {}, 1560, nullptr, nullptr, Plain, 0},
      {"mnuEditUndo", "&Undo", "Ctrl+Z", 1560, run<&W::mnuEditUndo>, canUndo},
      {"mnuEditRedo", "&Redo", "Ctrl+Shift+Z; Ctrl+Y", 1560, run<&W::mnuEditRedo>, canRedo},
      {"mnuEditBar0", "-"},
      {"mnuEditCut", "Cu&t Item/Submenu", "Ctrl+X", 1560, run<&W::mnuEditCut>, canCopy},
      {"mnuEditCopy", "&Copy Item/Submenu", "Ctrl+C", 1560, run<&W::mnuEditCopy>, canCopy},
      {"mnuEditPaste", "&Paste Item/Submenu", "Ctrl+V", 1560, run<&W::mnuEditPaste>, canPaste},
      {"mnuEditDuplicate", "&Duplicate Item", "Ctrl+D", 1560, run<&W::mnuEditDuplicate>, hasItem},
      {"mnuEditRename", "Re&name", "F2", 1560, [](W& w) { w.isRenaming = w.selected() != nullptr; }, nullptr, InTree},
      {"mnuEditBar1", "-"},
      {"mnuEditFind", "&Find...", "Ctrl+F", 1560, [](W& w) { w.isFinding = true; }},
      {"mnuEditFindNext", "Find Ne&xt", "F3", 1560, run<&W::findNext, true>},
      {"mnuEditFindPrevious", "Find Pre&vious", "Shift+F3", 1560, run<&W::findNext, false>},
      {"mnuEditBar2", "-"},
      {"mnuEditResetProperty", "Reset &Property to Default", "Ctrl+Backspace", 1560, run<&W::mnuEditReset, true>},
      {"mnuEditResetElement", "Reset &Element to Defaults", {}, 1560, run<&W::mnuEditReset, false>},
      {"mnuItem", "&Item", {}, 1590, nullptr, nullptr, Plain, 0},
      {"mnuItemAddItem", "&Add Item", "Ins", 1590, run<&W::mnuItemAddItem>, nullptr, InTree},
      {"mnuItemDeleteItem", "&Delete Item", {}, 1600, run<&W::mnuItemDeleteItem>, hasItem},
      {"mnuItemBar0", "-"},
      {"mnuItemMoveItemUp", "Move Item &Up", "Ctrl+Up", 1610, run<&W::mnuItemMove, true>, canMoveUp, InTree},
      {"mnuItemMoveItemDown", "Move Item D&own", "Ctrl+Down", 1620, run<&W::mnuItemMove, false>, canMoveDown, InTree},
      {"mnuItemIndent", "Move Item &into Submenu", "Ctrl+Right", 1610, run<&W::mnuItemIndent>, canIndent, InTree},
      {"mnuItemOutdent", "Move Item ou&t of Submenu", "Ctrl+Left", 1610, run<&W::mnuItemOutdent>, canOutdent, InTree},
      {"mnuSubmenu", "Su&bmenu", {}, 1630, nullptr, nullptr, Plain, 0},
      {"mnuSubmenuAddSubmenu", "&Add Submenu", {}, 1630, run<&W::mnuSubmenuAddSubmenu>, hasItem},
      {"mnuSubmenuDeleteSubmenu", "&Delete Submenu", {}, 1640, run<&W::mnuSubmenuDeleteSubmenu>, hasSubmenu},
      {"mnuStyle", "&Style", {}, 1650, nullptr, nullptr, Plain, 0},
      {"mnuStylePickStyle", "&Pick Style", "Ctrl+P", 1650, run<&W::mnuStylePickStyle>},
      {"mnuStyleApplyStyle", "&Apply Style", "Ctrl+A", 1660, run<&W::mnuStyleApplyStyle>, canApplyStyle},
      {"mnuStyleBar0", "-"},
      {"mnuStyleSaveStyle", "Create New Style from Menu...", {}, 2710, run<&W::mnuStyleSaveStyle>},
      {"mnuStyleOpenStyleLibrary", "&Open Style Gallery...", {}, 1680, run<&W::mnuStyleOpenStyleLibrary>},
      {"mnuTools", "&Tools", {}, 1690, nullptr, nullptr, Plain, 0},
      {"mnuToolsPreview", "&Preview Menu", "F12", 1690, run<&W::mnuToolsPreview>},
      {"mnuToolsCompileMenu", "&Compile Menu...", {}, 2340, run<&W::mnuToolsCompileMenu>},
      {"mnuToolsInsertMenuIntoWebpage", "&Link Compiled Menu to Web Page(s)...", {}, 1700, run<&W::mnuToolsInsertMenuIntoWebpage>},
      {"mnuToolsSeparator1", "-"},
      {"mnuToolsCompileProperties", "Compile Properties...", {}, 0, run<&W::mnuToolsCompileProperties>},
      {"mnuToolsSeparator2", "-"},
      {"mnuToolsOptions", "Options", {}, 0, [](W&) {}},
      {"mnuToolsShowTipOnStartup", "Open Tip of the Day on Startup", {}, 0, run<&W::mnuToolsShowTipOnStartup>, nullptr, Checked, 2},
      {"mnuToolsShowPreviewOnStartup", "Open Preview Window on Startup", {}, 0, run<&W::mnuToolsShowPreviewOnStartup>, nullptr, Checked, 2},
      {"mnuHelp", "&Help", {}, 0, nullptr, nullptr, Plain, 0},
      {"mnuHelpContents", "&Contents", {}, 0, [](W& w) { w.ports.help.openContents(); }},
      {"mnuHelpSearchForHelpOn", "&Search For Help On...", {}, 0, [](W& w) { w.ports.help.openSearch(); }},
      {"mnuHelpHowDoI", "How do I...", {}, 0, [](W& w) { w.ports.help.openTopic(2280); }},
      {"mnuHelpTipOfTheDay", "Tip of the Day", {}, 0, run<&W::mnuHelpTipOfTheDay>},
      {"mnuHelpPerformanceIssues", "&Optimization Techniques", {}, 0, [](W& w) { w.ports.help.openTopic(2300); }},
      {"mnuHelpBar0", "-"},
      {"mnuHelpVisitTolvaneOnTheWeb", "Visit &Tolvane on the Web", {}, 0, [](W& w) { OpenWithShell(w.ports.opener, addresses::home); }},
      {"mnuHelpOnlineSupportCenter", "&On-line Support Center", {}, 0, [](W& w) { OpenWithShell(w.ports.opener, addresses::support); }, nullptr, Hidden},
      {"mnuHelpBar2", "-"},
      {"mnuHelpAbout", "&About...", {}, 0, run<&W::mnuHelpAbout>},
  });
  // clang-format on
};

namespace {

// clang-format off
constexpr auto onMenu = std::to_array<ContextEntry>({
    {"mnuMenuPopupPaste", "Paste", "mnuEditPaste"},
    {"", "-", ""},
    {"mnuMenuPopupPickStyle", "Pick Style", "mnuStylePickStyle"},
    {"mnuMenuPopupApplyStyle", "Apply Style", "mnuStyleApplyStyle"},
    {"", "-", ""},
    {"mnuMenuPopupAddItem", "Add Item", "mnuItemAddItem"},
});

constexpr auto onSubmenu = std::to_array<ContextEntry>({
    {"mnuSubmenuPopupCut", "Cut", "mnuEditCut"},
    {"mnuSubmenuPopupCopy", "Copy", "mnuEditCopy"},
    {"mnuSubmenuPopupPaste", "Paste", "mnuEditPaste"},
    {"", "-", ""},
    {"mnuSubmenuPopupPickStyle", "Pick Style", "mnuStylePickStyle"},
    {"mnuSubmenuPopupApplyStyle", "Apply Style", "mnuStyleApplyStyle"},
    {"", "-", ""},
    {"mnuSubmenuPopupAddItem", "Add Item", "mnuItemAddItem"},
    {"mnuSubmenuPopupDeleteSubmenu", "Delete Submenu", "mnuSubmenuDeleteSubmenu"},
});

constexpr auto onItem = std::to_array<ContextEntry>({
    {"mnuItemPopupCut", "Cut", "mnuEditCut"},
    {"mnuItemPopupCopy", "Copy", "mnuEditCopy"},
    {"mnuItemPopupPaste", "Paste", "mnuEditPaste"},
    {"mnuItemPopupDuplicate", "Duplicate", "mnuEditDuplicate"},
    {"mnuItemPopupRename", "Rename", "mnuEditRename"},
    {"", "-", ""},
    {"mnuItemPopupPickStyle", "Pick Style", "mnuStylePickStyle"},
    {"mnuItemPopupApplyStyle", "Apply Style", "mnuStyleApplyStyle"},
    {"", "-", ""},
    {"mnuItemPopupAddItem", "Add Item", "mnuItemAddItem"},
    {"mnuItemPopupAddSubmenu", "Add Submenu", "mnuSubmenuAddSubmenu"},
    {"", "-", ""},
    {"mnuItemPopupMoveItemUp", "Move Item Up", "mnuItemMoveItemUp"},
    {"mnuItemPopupMoveItemDown", "Move Item Down", "mnuItemMoveItemDown"},
    {"", "-", ""},
    {"mnuItemPopupDeleteItem", "Delete Item", "mnuItemDeleteItem"},
});

constexpr auto popups = std::to_array<ContextMenu>({
    {"mnuMenuPopup", Kind::Menu, onMenu},
    {"mnuSubmenuPopup", Kind::Submenu, onSubmenu},
    {"mnuItemPopup", Kind::Item, onItem},
});

constexpr auto buttons = std::to_array<ToolButton>({
    {"New", "New Menu", "mnuFileNew"},
    {"Open", "Open Menu", "mnuFileOpen"},
    {"Save", "Save Menu", "mnuFileSave"},
    {},
    {"Undo", "Undo", "mnuEditUndo"},
    {"Redo", "Redo", "mnuEditRedo"},
    {},
    {"Cut", "Cut Item/Submenu", "mnuEditCut"},
    {"Copy", "Copy Item/Submenu", "mnuEditCopy"},
    {"Paste", "Paste Item/Submenu", "mnuEditPaste"},
    {},
    {"Add Item", "Add Item", "mnuItemAddItem"},
    {"Delete Item", "Delete Item", "mnuItemDeleteItem"},
    {"Add Submenu", "Add Submenu", "mnuSubmenuAddSubmenu"},
    {"Delete Submenu", "Delete Submenu", "mnuSubmenuDeleteSubmenu"},
    {},
    {"Move Item Up", "Move Item Up", "mnuItemMoveItemUp"},
    {"Move Item Down", "Move Item Down", "mnuItemMoveItemDown"},
    {},
    {"Pick Style", "Pick Style", "mnuStylePickStyle"},
    {"Apply Style", "Apply Style", "mnuStyleApplyStyle"},
    {},
    {"Preview Menu", "Preview Menu", "mnuToolsPreview"},
    {"Compile Menu", "Compile Menu", "mnuToolsCompileMenu"},
    {"Insert Menu into Webpage", "Link Compiled Menu to Web Page(s)", "mnuToolsInsertMenuIntoWebpage"},
    {},
    {"Help", "Help", "mnuHelpContents"},
});
// clang-format on

const Command* find(std::string_view name) {
  const auto* found = std::ranges::find(CommandTable::bar, name, &Command::name);
  return found == CommandTable::bar.end() || found->run == nullptr ? nullptr : found;
}

// By name alone: a pointer compared with null is no constant to a sanitizer.
constexpr bool isCommand(std::string_view name) {
  return std::ranges::find(CommandTable::bar, name, &Command::name) != CommandTable::bar.end();
}

static_assert(std::ranges::all_of(popups, [](const ContextMenu& menu) {
  return std::ranges::all_of(menu.entries, [](const ContextEntry& entry) {
    return entry.caption == "-" || isCommand(entry.command);
  });
}));
static_assert(std::ranges::all_of(buttons, [](const ToolButton& button) {
  return button.key.empty() || isCommand(button.command);
}));

}  // namespace

std::span<const Command> menuBar() { return CommandTable::bar; }
std::span<const ContextMenu> contextMenus() { return popups; }
std::span<const ToolButton> toolbar() { return buttons; }

const Command* commandOfEntry(std::string_view name) {
  if (name.empty()) return nullptr;
  if (const auto* command = find(name)) return command;
  for (const auto& menu : popups) {
    const auto found = std::ranges::find(menu.entries, name, &ContextEntry::name);
    if (found != menu.entries.end()) return find(found->command);
  }
  return nullptr;
}

const Command* commandOfKey(std::string_view key) {
  if (key.empty()) return nullptr;
  if (key == "Open Style Library") return find("mnuStyleOpenStyleLibrary");
  const auto* button = std::ranges::find(buttons, key, &ToolButton::key);
  return button == buttons.end() ? nullptr : find(button->command);
}

}  // namespace nimbrel
