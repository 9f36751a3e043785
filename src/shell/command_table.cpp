#include "shell/command_table.h"

namespace nimbrel {
namespace {

constexpr bool isMenuBarEntry(std::string_view name) {
  return std::ranges::find(menuBar(), name, &MenuEntry::name) != menuBar().end();
}
static_assert(std::ranges::all_of(contextMenus(), [](const ContextMenu& menu) {
  return std::ranges::all_of(menu.entries, [](const ContextEntry& entry) {
    return entry.caption == "-" || isMenuBarEntry(entry.command);
  });
}));
static_assert(std::ranges::all_of(toolbar(), [](const ToolButton& button) {
  return button.key.empty() || isMenuBarEntry(button.command);
}));

}  // namespace

std::string_view commandOfKey(std::string_view key) {
  if (key.empty()) return {};
  if (key == "Open Style Library") return "mnuStyleOpenStyleLibrary";
  const auto* button = std::ranges::find(tables::buttons, key, &ToolButton::key);
  return button == tables::buttons.end() ? std::string_view{} : button->command;
}

std::string_view commandOfEntry(std::string_view name) {
  if (name.empty()) return {};
  const auto* entry = std::ranges::find(tables::bar, name, &MenuEntry::name);
  if (entry != tables::bar.end())
    return entry->level == 0 || entry->caption == "-" ? std::string_view{} : entry->name;
  for (const auto& menu : contextMenus()) {
    const auto found = std::ranges::find(menu.entries, name, &ContextEntry::name);
    if (found != menu.entries.end()) return found->command;
  }
  return {};
}

}  // namespace nimbrel
