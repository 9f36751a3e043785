#pragma once

#include <string>
#include <string_view>

#include "platform/settings_store.h"
#include "text/numbers.h"

/// The settings that the program keeps between two runs: section, key and default. The recent files have their own
/// keys (see `recent_files.cpp`). All values are stored as text.
namespace nimbrel {

struct Setting {
  std::string_view section;
  std::string_view key;
  std::string_view standard;  ///< the default

  std::string read(const SettingsStore& store) const { return store.GetSetting(section, key, standard); }
  /// Accepts a word or a number; anything else counts as not set.
  bool readFlag(const SettingsStore& store) const {
    return parseBoolean(read(store)).value_or(parseBoolean(standard).value_or(false));
  }
  void write(SettingsStore& store, std::string_view value) const { store.SaveSetting(section, key, value); }
};

namespace settings {

// Twips.
inline constexpr Setting MainLeft{"Settings2", "MainLeft", "1000"};
inline constexpr Setting MainTop{"Settings2", "MainTop", "1000"};
inline constexpr Setting MainWidth{"Settings2", "MainWidth", "6500"};
inline constexpr Setting MainHeight{"Settings2", "MainHeight", "6500"};

inline constexpr Setting ShowTips{"Settings", "Show Tips at Startup", "1"};
inline constexpr Setting ShowPreview{"Settings", "ShowPreviewOnStartup", "True"};
inline constexpr Setting FirstOpen{"Settings", "FirstOpen", "1"};
inline constexpr Setting DontShowPickDialog{"Settings", "DontShowPickDialog", "False"};
inline constexpr Setting DontShowCompileWarning{"Settings", "DontShowCompileWarningDialog", "False"};

}  // namespace settings
}  // namespace nimbrel
