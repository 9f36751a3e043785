#pragma once

#include <span>
#include <string_view>

/// The commands of the main window as data: menu bar, context menus and toolbar, in their order on the screen.
/// Captions have "&" ahead of the key that reaches them.
namespace nimbrel {

/// What a menu entry starts as.
enum EntryState : unsigned { Plain = 0, Hidden = 1, Checked = 2 };

struct MenuEntry {
  std::string_view name;
  std::string_view caption;  ///< "-" for a separator
  std::string_view shortcut = {};
  int helpTopic = 0;
  unsigned state = Plain;
  int level = 1;  ///< 0 a menu of the bar or a context menu, 1 its entries, 2 those of an entry
};

/// An entry of a context menu runs the command of another name.
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

std::span<const MenuEntry> menuBar();
std::span<const ContextMenu> contextMenus();
/// A button without a key is a gap.
std::span<const ToolButton> toolbar();

/// The command that a toolbar key runs, also of keys that no button bears; empty for others.
std::string_view commandOfKey(std::string_view key);
/// The command that an entry of menu bar or context menu runs; empty for what is no entry.
std::string_view commandOfEntry(std::string_view name);

}  // namespace nimbrel
