#include "platform/settings_store.h"

namespace nimbrel {

std::string MemorySettings::GetSetting(std::string_view section, std::string_view key,
                                       std::string_view standard) const {
  const auto foundSection = sections.find(section);
  if (foundSection == sections.end()) return std::string(standard);
  const auto found = foundSection->second.find(key);
  return found == foundSection->second.end() ? std::string(standard) : found->second;
}

void MemorySettings::SaveSetting(std::string_view section, std::string_view key, std::string_view value) {
  sections[std::string(section)].insert_or_assign(std::string(key), value);
}

}  // namespace nimbrel
