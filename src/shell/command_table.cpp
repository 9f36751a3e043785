#include "shell/command_table.h"

#include <algorithm>
#include <array>

namespace nimbrel {
namespace {

// clang-format off
constexpr auto bar = std::to_array<MenuEntry>({
    {"mnuFile", "&File", {}, 1510, Plain, 0},
    {"mnuFileNew", "&New", "Ctrl+N", 1510},
    {"mnuFileOpen", "&Open...", {}, 1510},
    {"mnuFileSave", "&Save", "Ctrl+S", 1510},
    {"mnuFileSaveAs", "Save &As...", {}, 1510},
    {"mnuFileBar0", "-", {}, 1510, Hidden},
    {"mnuFileMRU1", "", {}, 1510, Hidden},
    {"mnuFileMRU2", "", {}, 1510, Hidden},
    {"mnuFileMRU3", "", {}, 1510, Hidden},
    {"mnuFileMRU4", "", {}, 1510, Hidden},
    {"mnuFileBar1", "-", {}, 1510},
    {"mnuFileExit", "E&xit", {}, 1510},
    {"mnuEdit", "&Edit", {}, 1560, Plain, 0},
    {"mnuEditCut", "Cu&t Item/Submenu", {}, 1560},
    {"mnuEditCopy", "&Copy Item/Submenu", {}, 1560},
    {"mnuEditPaste", "&Paste Item/Submenu", {}, 1560},
    {"mnuItem", "&Item", {}, 1590, Plain, 0},
    {"mnuItemAddItem", "&Add Item", {}, 1590},
    {"mnuItemDeleteItem", "&Delete Item", {}, 1600},
    {"mnuItemBar0", "-"},
    {"mnuItemMoveItemUp", "Move Item &Up", {}, 1610},
    {"mnuItemMoveItemDown", "Move Item D&own", {}, 1620},
    {"mnuSubmenu", "Su&bmenu", {}, 1630, Plain, 0},
    {"mnuSubmenuAddSubmenu", "&Add Submenu", {}, 1630},
    {"mnuSubmenuDeleteSubmenu", "&Delete Submenu", {}, 1640},
    {"mnuStyle", "&Style", {}, 1650, Plain, 0},
    {"mnuStylePickStyle", "&Pick Style", "Ctrl+P", 1650},
    {"mnuStyleApplyStyle", "&Apply Style", "Ctrl+A", 1660},
    {"mnuStyleBar0", "-"},
    {"mnuStyleSaveStyle", "Create New Style from Menu...", {}, 2710},
    {"mnuStyleOpenStyleLibrary", "&Open Style Gallery...", {}, 1680},
    {"mnuTools", "&Tools", {}, 1690, Plain, 0},
    {"mnuToolsPreview", "&Preview Menu", "F12", 1690},
    {"mnuToolsCompileMenu", "&Compile Menu...", {}, 2340},
    {"mnuToolsInsertMenuIntoWebpage", "&Link Compiled Menu to Web Page(s)...", {}, 1700},
    {"mnuToolsSeparator1", "-"},
    {"mnuToolsCompileProperties", "Compile Properties..."},
    {"mnuToolsSeparator2", "-"},
    {"mnuToolsOptions", "Options"},
    {"mnuToolsShowTipOnStartup", "Open Tip of the Day on Startup", {}, 0, Checked, 2},
    {"mnuToolsShowPreviewOnStartup", "Open Preview Window on Startup", {}, 0, Checked, 2},
    {"mnuHelp", "&Help", {}, 0, Plain, 0},
    {"mnuHelpContents", "&Contents"},
    {"mnuHelpSearchForHelpOn", "&Search For Help On..."},
    {"mnuHelpHowDoI", "How do I..."},
    {"mnuHelpTipOfTheDay", "Tip of the Day"},
    {"mnuHelpPerformanceIssues", "&Optimization Techniques"},
    {"mnuHelpBar0", "-"},
    {"mnuHelpVisitTolvaneOnTheWeb", "Visit &Tolvane on the Web"},
    {"mnuHelpOnlineSupportCenter", "&On-line Support Center", {}, 0, Hidden},
    {"mnuHelpBar2", "-"},
    {"mnuHelpAbout", "&About..."},
});

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
    {"mnuMenuPopup", onMenu},
    {"mnuSubmenuPopup", onSubmenu},
    {"mnuItemPopup", onItem},
});

constexpr auto buttons = std::to_array<ToolButton>({
    {"New", "New Menu", "mnuFileNew"},
    {"Open", "Open Menu", "mnuFileOpen"},
    {"Save", "Save Menu", "mnuFileSave"},
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

}  // namespace

std::span<const MenuEntry> menuBar() { return bar; }

std::span<const ContextMenu> contextMenus() { return popups; }

std::span<const ToolButton> toolbar() { return buttons; }

std::string_view commandOfKey(std::string_view key) {
  if (key.empty()) return {};
  if (key == "Open Style Library") return "mnuStyleOpenStyleLibrary";  // kept for a button to come
  const auto* button = std::ranges::find(buttons, key, &ToolButton::key);
  return button == buttons.end() ? std::string_view{} : button->command;
}

std::string_view commandOfEntry(std::string_view name) {
  if (name.empty()) return {};
  const auto* entry = std::ranges::find(bar, name, &MenuEntry::name);
  if (entry != bar.end())
    return entry->level == 0 || entry->caption == "-" ? std::string_view{} : entry->name;
  for (const auto& menu : popups) {
    const auto found = std::ranges::find(menu.entries, name, &ContextEntry::name);
    if (found != menu.entries.end()) return found->command;
  }
  return {};
}

}  // namespace nimbrel
