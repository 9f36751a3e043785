#pragma once

#include <map>
#include <string>
#include <string_view>

namespace nimbrel {

/// How an entry of menu bar or context menu stands at present.
struct CommandState {
  std::string caption;
  bool enabled = true;
  bool visible = true;
  bool checked = false;
};

/// The entries and toolbar buttons of the main window by name, separators too, as the table starts them.
class CommandStates {
 public:
  CommandStates();

  CommandState& entry(std::string_view name) { return entries_.find(name)->second; }
  const CommandState* find(std::string_view name) const;
  bool button(std::string_view key) const { return buttons_.find(key)->second; }

  /// Sets an entry and, if there is one, the toolbar button of the same command.
  void enable(std::string_view name, bool enabled);
  /// Sets Paste in all menus and the toolbar.
  void enablePaste(bool enabled);

  const std::map<std::string, CommandState, std::less<>>& entries() const { return entries_; }
  const std::map<std::string, bool, std::less<>>& buttons() const { return buttons_; }

 private:
  std::map<std::string, CommandState, std::less<>> entries_;
  std::map<std::string, bool, std::less<>> buttons_;  ///< by key: whether it is enabled
};

}  // namespace nimbrel
