#pragma once

#include <QSettings>

#include "platform/settings_store.h"

namespace nimbrel {

/// The settings of the user, in an INI file with one group per section.
class UserSettings : public SettingsStore {
 public:
  UserSettings();

  std::string GetSetting(std::string_view section, std::string_view key,
                         std::string_view standard) const override;
  void SaveSetting(std::string_view section, std::string_view key, std::string_view value) override;

 private:
  QSettings store_;
};

}  // namespace nimbrel
