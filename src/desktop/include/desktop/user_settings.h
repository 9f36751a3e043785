#pragma once

#include <QSettings>
#include <QTimer>
#include <map>

#include "platform/settings_store.h"

namespace nimbrel {

/// The settings of the user, in an INI file with one group per section. If another program keeps that file locked, new
/// values wait in memory and are written later.
class UserSettings : public SettingsStore {
 public:
  UserSettings();
  UserSettings(const UserSettings&) = delete;
  UserSettings& operator=(const UserSettings&) = delete;
  ~UserSettings() override;

  std::string GetSetting(std::string_view section, std::string_view key,
                         std::string_view standard) const override;
  void SaveSetting(std::string_view section, std::string_view key, std::string_view value) override;

 private:
  /// Writes what is waiting. `patience`: how long to wait for the lock, in milliseconds.
  void write(int patience);

  QSettings store_;
  std::map<QString, QString> waiting_;
  QTimer retry_;
};

}  // namespace nimbrel
