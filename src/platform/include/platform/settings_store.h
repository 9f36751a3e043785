#pragma once

#include <map>
#include <string>
#include <string_view>

namespace nimbrel {

/// The user's settings, kept between runs: texts under a section and a key.
class SettingsStore {
 public:
  virtual ~SettingsStore() = default;

  /// Returns the stored text, or `standard` if there is none.
  virtual std::string GetSetting(std::string_view section, std::string_view key,
                                 std::string_view standard) const = 0;
  virtual void SaveSetting(std::string_view section, std::string_view key, std::string_view value) = 0;
};

/// Settings in memory.
class MemorySettings : public SettingsStore {
 public:
  using Section = std::map<std::string, std::string, std::less<>>;

  std::string GetSetting(std::string_view section, std::string_view key,
                         std::string_view standard) const override;
  void SaveSetting(std::string_view section, std::string_view key, std::string_view value) override;

  std::map<std::string, Section, std::less<>> sections;
};

}  // namespace nimbrel
