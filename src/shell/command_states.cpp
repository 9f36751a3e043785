#include "shell/command_states.h"

#include <cstddef>
#include <stdexcept>
#include <unordered_map>

#include "shell/command_table.h"

namespace nimbrel {
namespace {

struct AllEntries {
  std::unordered_map<std::string_view, std::size_t> places;
  std::vector<CommandState> states;  ///< at the start

  AllEntries() {
    const auto add = [this](std::string_view name, CommandState state) {
      if (places.emplace(name, states.size()).second) states.push_back(std::move(state));
    };
    for (const auto& entry : menuBar()) {
      add(entry.name,
          {std::string(entry.caption), true, (entry.state & Hidden) == 0, (entry.state & Checked) != 0});
    }
    for (const auto& menu : contextMenus()) {
      for (const auto& entry : menu.entries) {
        if (!entry.name.empty()) add(entry.name, {std::string(entry.caption)});
      }
    }
  }
};

const AllEntries& allEntries() {
  static const AllEntries entries;
  return entries;
}

}  // namespace

CommandStates::CommandStates() : states_(allEntries().states) {}

const CommandState* CommandStates::find(std::string_view name) const {
  const auto& places = allEntries().places;
  const auto found = places.find(name);
  return found == places.end() ? nullptr : &states_[found->second];
}

const CommandState& CommandStates::entry(std::string_view name) const {
  if (const auto* state = find(name)) return *state;
  throw std::out_of_range("no entry " + std::string(name));
}

CommandState& CommandStates::entry(std::string_view name) {
  const auto& found = std::as_const(*this).entry(name);
  return states_[static_cast<std::size_t>(&found - states_.data())];
}

}  // namespace nimbrel
