#pragma once

#include "cli/json.h"
#include "platform/settings_store.h"
#include "shell/main_window.h"

/// What a macro can have printed, as JSON.
namespace nimbrel {

Json treeState(const frmMain& window);
Json publicState(const frmMain& window);
Json commandState(const frmMain& window);
/// Throws `MacroFault` where no sheet is shown.
Json sheetState(frmMain& window);
/// Throws `MacroFault` for a key that is not there.
Json elementState(frmMain& window, std::string_view key);
Json settingsState(const MemorySettings& settings);

/// Settings as they were printed. Throws `MacroFault` for anything else.
void readSettings(MemorySettings& settings, std::string_view text, const std::string& path);

}  // namespace nimbrel
