#pragma once

#include <algorithm>
#include <array>
#include <span>
#include <string_view>

/// The commands of the main window as data: menu bar, context menus and toolbar, in the order on the screen. In a
/// caption "&" precedes the access key. The tables are in this header so that names are checked when compiling.
namespace nimbrel {

/// The state of a menu entry at the start, and where its shortcut works.
enum EntryState : unsigned { Plain = 0, Hidden = 1, Checked = 2, InTree = 4 };

struct MenuEntry {
  std::string_view name;
  std::string_view caption;  ///< "-" for a separator
  std::string_view shortcut = {};
  int helpTopic = 0;
  unsigned state = Plain;
  int level = 1;  ///< 0: a menu of the bar, 1: its entries, 2: entries of a submenu
};

/// An entry of a context menu. It has its own name, and runs a command of the menu bar.
struct ContextEntry {
  std::string_view name;
  std::string_view caption;
  std::string_view command;
};

struct ContextMenu {
  std::string_view name;
  std::span<const ContextEntry> entries;
};

struct ToolButton {
  std::string_view key;
  std::string_view toolTip;
  std::string_view command;
};

namespace tables {

// clang-format off
inline constexpr auto bar = std::to_array<MenuEntry>({
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
    {"mnuEditUndo", "&Undo", "Ctrl+Z", 1560},
    {"mnuEditRedo", "&Redo", "Ctrl+Shift+Z; Ctrl+Y", 1560},
    {"mnuEditBar0", "-"},
    {"mnuEditCut", "Cu&t Item/Submenu", "Ctrl+X", 1560},
    {"mnuEditCopy", "&Copy Item/Submenu", "Ctrl+C", 1560},
    {"mnuEditPaste", "&Paste Item/Submenu", "Ctrl+V", 1560},
    {"mnuEditDuplicate", "&Duplicate Item", "Ctrl+D", 1560},
    {"mnuEditRename", "Re&name", "F2", 1560, InTree},
    {"mnuEditBar1", "-"},
    {"mnuEditFind", "&Find...", "Ctrl+F", 1560},
    {"mnuEditFindNext", "Find Ne&xt", "F3", 1560},
    {"mnuEditFindPrevious", "Find Pre&vious", "Shift+F3", 1560},
    {"mnuEditBar2", "-"},
    {"mnuEditResetProperty", "Reset &Property to Default", "Ctrl+Backspace", 1560},
    {"mnuEditResetElement", "Reset &Element to Defaults", {}, 1560},
    {"mnuItem", "&Item", {}, 1590, Plain, 0},
    {"mnuItemAddItem", "&Add Item", "Ins", 1590, InTree},
    {"mnuItemDeleteItem", "&Delete Item", {}, 1600},
    {"mnuItemBar0", "-"},
    {"mnuItemMoveItemUp", "Move Item &Up", "Ctrl+Up", 1610, InTree},
    {"mnuItemMoveItemDown", "Move Item D&own", "Ctrl+Down", 1620, InTree},
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

inline constexpr auto onMenu = std::to_array<ContextEntry>({
    {"mnuMenuPopupPaste", "Paste", "mnuEditPaste"},
    {"", "-", ""},
    {"mnuMenuPopupPickStyle", "Pick Style", "mnuStylePickStyle"},
    {"mnuMenuPopupApplyStyle", "Apply Style", "mnuStyleApplyStyle"},
    {"", "-", ""},
    {"mnuMenuPopupAddItem", "Add Item", "mnuItemAddItem"},
});

inline constexpr auto onSubmenu = std::to_array<ContextEntry>({
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

inline constexpr auto onItem = std::to_array<ContextEntry>({
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

inline constexpr auto popups = std::to_array<ContextMenu>({
    {"mnuMenuPopup", onMenu},
    {"mnuSubmenuPopup", onSubmenu},
    {"mnuItemPopup", onItem},
});

inline constexpr auto buttons = std::to_array<ToolButton>({
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

}  // namespace tables

constexpr std::span<const MenuEntry> menuBar() { return tables::bar; }
constexpr std::span<const ContextMenu> contextMenus() { return tables::popups; }
/// An entry without a key is a gap between buttons.
constexpr std::span<const ToolButton> toolbar() { return tables::buttons; }

/// Whether the menu bar or a context menu has an entry with this name, separators and menus included.
constexpr bool isEntry(std::string_view name) {
  if (name.empty()) return false;
  if (std::ranges::find(menuBar(), name, &MenuEntry::name) != menuBar().end()) return true;
  return std::ranges::any_of(contextMenus(), [name](const ContextMenu& menu) {
    return std::ranges::find(menu.entries, name, &ContextEntry::name) != menu.entries.end();
  });
}

/// The name of an entry. A name that no table has does not compile.
class EntryName {
 public:
  consteval EntryName(const char* name) : name_(name) {  // NOLINT(google-explicit-constructor)
    if (!isEntry(name_)) throw "no entry has this name";
  }
  constexpr std::string_view view() const { return name_; }

 private:
  std::string_view name_;
};

/// The command that a toolbar key runs, empty for an unknown key. "Open Style Library" is a key without a button.
std::string_view commandOfKey(std::string_view key);
/// The command that an entry of the menu bar or a context menu runs, empty for any other name.
std::string_view commandOfEntry(std::string_view name);

}  // namespace nimbrel
