#include "shell/command_states.h"

#include <stdexcept>

namespace nimbrel {

CommandStates::CommandStates() {
  for (const auto& entry : menuBar()) {
    entries_.emplace(entry.name, CommandState{std::string(entry.caption), true, (entry.state & Hidden) == 0,
                                              (entry.state & Checked) != 0});
  }
  for (const auto& menu : contextMenus()) {
    for (const auto& entry : menu.entries) {
      if (!entry.name.empty()) entries_.emplace(entry.name, CommandState{std::string(entry.caption)});
    }
  }
  for (const auto& button : toolbar()) {
    if (!button.key.empty()) buttons_.emplace(button.key, true);
  }
}

const CommandState* CommandStates::find(std::string_view name) const {
  const auto found = entries_.find(name);
  return found == entries_.end() ? nullptr : &found->second;
}

bool CommandStates::button(std::string_view key) const {
  const auto found = buttons_.find(key);
  if (found == buttons_.end()) throw std::out_of_range("no toolbar button " + std::string(key));
  return found->second;
}

void CommandStates::enable(EntryName name, bool enabled) {
  entry(name).enabled = enabled;
  for (const auto& button : toolbar()) {
    if (button.command == name.view()) buttons_.find(button.key)->second = enabled;
  }
}

void CommandStates::enablePaste(bool enabled) {
  enable("mnuEditPaste", enabled);
  enable("mnuMenuPopupPaste", enabled);
  enable("mnuSubmenuPopupPaste", enabled);
  enable("mnuItemPopupPaste", enabled);
}

}  // namespace nimbrel
