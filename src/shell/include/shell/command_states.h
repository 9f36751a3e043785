#pragma once

#include <map>
#include <string>
#include <string_view>

#include "shell/command_table.h"

namespace nimbrel {

/// The present state of an entry of the menu bar or a context menu.
struct CommandState {
  std::string caption;
  bool enabled = true;
  bool visible = true;
  bool checked = false;
};

/// The states of all entries and toolbar buttons of the main window, by name. Separators have names and states too.
class CommandStates {
 public:
  CommandStates();

  CommandState& entry(EntryName name) { return entries_.find(name.view())->second; }
  const CommandState& entry(EntryName name) const { return entries_.find(name.view())->second; }
  /// Returns nullptr for an unknown name.
  const CommandState* find(std::string_view name) const;
  /// Whether a toolbar button is enabled. Throws std::out_of_range for an unknown key.
  bool button(std::string_view key) const;

  /// Enables or disables an entry and, if there is one, the toolbar button of the same command.
  void enable(EntryName name, bool enabled);
  /// The same for Paste in all menus and the toolbar.
  void enablePaste(bool enabled);

  const std::map<std::string, CommandState, std::less<>>& entries() const { return entries_; }
  const std::map<std::string, bool, std::less<>>& buttons() const { return buttons_; }

 private:
  std::map<std::string, CommandState, std::less<>> entries_;
  std::map<std::string, bool, std::less<>> buttons_;  ///< whether each is enabled, by key
};

}  // namespace nimbrel
