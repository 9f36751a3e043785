#pragma once

#include <algorithm>
#include <string>
#include <string_view>

/// Character functions without a locale. Only ASCII letters and digits are recognized.
namespace nimbrel {

/// The line end of all files that Nimbrel writes.
inline constexpr std::string_view lineEnd = "\r\n";

constexpr bool isDigit(char c) { return c >= '0' && c <= '9'; }

constexpr char toLower(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

constexpr bool equalIgnoringCase(std::string_view a, std::string_view b) {
  return std::ranges::equal(a, b, {}, toLower, toLower);
}

inline std::string lowered(std::string_view text) {
  std::string result(text);
  std::ranges::transform(result, result.begin(), toLower);
  return result;
}

/// The text without the blanks (byte 32) at both ends. Tabs and byte 160 stay.
constexpr std::string_view trimmed(std::string_view text) {
  const auto first = std::min(text.find_first_not_of(' '), text.size());
  return text.substr(first, text.find_last_not_of(' ') + 1 - first);
}

}  // namespace nimbrel
