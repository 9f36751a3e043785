#pragma once

#include <cstddef>
#include <span>
#include <string_view>

#include "model/tree.h"

/// The commands of the main window as data: menu bar, context menus and toolbar, in the order on the screen. In a
/// caption "&" precedes the access key.
namespace nimbrel {

class frmMain;

/// The state of a menu entry at the start, and where its shortcut works.
enum EntryState : unsigned { Plain = 0, Hidden = 1, Checked = 2, InTree = 4 };

/// A command, or a separator or menu of the menu bar.
struct Command {
  std::string_view name;
  std::string_view caption;        ///< "-" for a separator
  std::string_view shortcut = {};  ///< several are separated by "; "
  int helpTopic = 0;
  void (*run)(frmMain&) = nullptr;                ///< nullptr for a menu or a separator
  bool (*enabledWhen)(const frmMain&) = nullptr;  ///< nullptr: always
  unsigned state = Plain;
  int level = 1;  ///< 0: a menu of the bar, 1: its entries, 2: entries of a submenu
};

/// An entry of a context menu. It has its own name, and runs a command of the menu bar.
struct ContextEntry {
  std::string_view name;
  std::string_view caption;
  std::string_view command;
};

/// The context menu of the nodes of one kind.
struct ContextMenu {
  std::string_view name;
  Kind kind;
  std::span<const ContextEntry> entries;
};

/// A button is enabled when its command is.
struct ToolButton {
  std::string_view key;
  std::string_view toolTip;
  std::string_view command;
};

std::span<const Command> menuBar();
std::span<const ContextMenu> contextMenus();
/// An entry without a key is a gap between buttons.
std::span<const ToolButton> toolbar();

/// The command that an entry of the menu bar or a context menu runs, or nullptr.
const Command* commandOfEntry(std::string_view name);
/// The command that a toolbar key runs, or nullptr. "Open Style Library" is a key without a button.
const Command* commandOfKey(std::string_view key);

}  // namespace nimbrel
