#include "desktop/user_settings.h"

#include "desktop/display_text.h"
#include "text/product.h"

namespace nimbrel {
namespace {

QString path(std::string_view section, std::string_view key) {
  return toDisplay(section) + '/' + toDisplay(key);
}

}  // namespace

UserSettings::UserSettings()
    : store_(QSettings::IniFormat, QSettings::UserScope, toDisplay(productTitle), toDisplay(productTitle)) {}

std::string UserSettings::GetSetting(std::string_view section, std::string_view key,
                                     std::string_view standard) const {
  const auto value = store_.value(path(section, key));
  return value.isValid() ? fromDisplay(value.toString()) : std::string(standard);
}

/// Writes at once: another instance may start before this one ends.
void UserSettings::SaveSetting(std::string_view section, std::string_view key, std::string_view value) {
  store_.setValue(path(section, key), toDisplay(value));
  store_.sync();
}

}  // namespace nimbrel
