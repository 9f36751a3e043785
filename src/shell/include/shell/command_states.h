#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace nimbrel {

/// The present state of an entry of the menu bar or a context menu.
struct CommandState {
  std::string caption;
  bool enabled = true;
  bool visible = true;
  bool checked = false;
};

/// The states of all entries of the main window's menus, by name. Separators have names and states too.
class CommandStates {
 public:
  CommandStates();

  /// Throw std::out_of_range for an unknown name.
  CommandState& entry(std::string_view name);
  const CommandState& entry(std::string_view name) const;
  /// Returns nullptr for an unknown name.
  const CommandState* find(std::string_view name) const;
  void enable(std::string_view name, bool enabled) { entry(name).enabled = enabled; }

 private:
  std::vector<CommandState> states_;
};

}  // namespace nimbrel
