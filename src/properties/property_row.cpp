#include "properties/property_row.h"

namespace nimbrel {

std::string PropertyRow::ExampleFile() const {
  if (example.empty()) return {};
  return std::string(example).append("\\").append(example).append(".html");
}

std::string PropertyRow::helpText(int col) const {
  const auto slot = slotOf(col);
  std::string text(HelpText[slot].empty() ? HelpText[0] : HelpText[slot]);
  const auto& normal = stateNames[0];
  if (HelpText[slot].empty()) {
    if (const auto at = text.find(normal); at != std::string::npos) {
      text.replace(at, normal.size(), stateNames[slot]);
    }
  }
  return text;
}

}  // namespace nimbrel
