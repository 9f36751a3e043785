#include "properties/cell_text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstddef>
#include <limits>

#include "model/properties.h"
#include "text/ascii.h"
#include "text/numbers.h"

namespace nimbrel {
namespace {

const SharedText* textOf(const PropertyValue& value) { return std::get_if<SharedText>(&value); }

double numberOf(const PropertyValue& value) {
  if (const auto* byte = std::get_if<std::uint8_t>(&value)) return *byte;
  const auto* number = std::get_if<float>(&value);
  return number == nullptr ? 0 : *number;
}

SharedText plainText(const PropertyValue& value) {
  if (const auto* text = textOf(value)) return *text;
  return {generalForm(static_cast<float>(numberOf(value)))};
}

SharedText trimmedText(const PropertyValue& value) {
  const auto text = plainText(value);
  const auto inner = trimmed(text);
  return inner.size() == text.view().size() ? text : SharedText(inner);
}

SharedText listText(const ChoiceList& choices, PropertyValue& value) {
  if (const auto* text = textOf(value); text != nullptr && trimmed(*text).empty()) return {};
  const auto& stored = choices.StoredValues;
  auto found = std::ranges::find_if(stored, [&](const auto& entry) { return sameValue(entry, value); });
  if (found == stored.end()) value = *--found;
  return choices.DisplayTexts[static_cast<std::size_t>(found - stored.begin())];
}

/// Quirk: fewer than six digits are padded with leading zeros, so "#FF0" becomes "#000FF0".
PropertyValue parseColour(const CellRules& rules, std::string_view text) {
  constexpr std::size_t digitCount = 6;
  text = trimmed(text);
  if (!text.starts_with('#') || text.size() > digitCount + 1) return rules.BlankValue;
  text.remove_prefix(1);
  std::string digits(digitCount - text.size(), '0');
  for (const char c : text) {
    const char digit = c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
    if (!isDigit(digit) && (digit < 'A' || digit > 'F')) return rules.BlankValue;
    digits += digit;
  }
  return SharedText("#" + digits);
}

PropertyValue parseNumber(const PropertyRow& row, std::string_view text) {
  return static_cast<float>(std::clamp<double>(Val(text), row.editor.MinValue, row.editor.MaxValue));
}

std::uint8_t hexPrefix(std::string_view text) {
  std::uint8_t value = 0;
  std::from_chars(text.data(), text.data() + text.size(), value, 16);
  return value;
}

}  // namespace

bool sameValue(const PropertyValue& a, const PropertyValue& b) {
  const auto* text = textOf(a);
  const auto* other = textOf(b);
  if (text != nullptr && other != nullptr) return *text == *other;
  return text == nullptr && other == nullptr && numberOf(a) == numberOf(b);
}

SharedText FormatCellText(const CellRules& rules, PropertyValue& value) {
  switch (rules.row->Kind()) {
    case KindGroup: return {};
    case KindList:
    case KindSortedList: return listText(*rules.choices, value);
    case KindText:
    case KindNumber: return sameValue(value, rules.BlankValue) ? rules.BlankText : plainText(value);
    default: return sameValue(value, rules.BlankValue) ? rules.BlankText : trimmedText(value);
  }
}

PropertyValue ParseCellText(const CellRules& rules, std::string_view text, const PropertyValue& old) {
  if (text.empty()) return rules.BlankValue;
  switch (rules.row->Kind()) {
    case KindText: return SharedText(text);
    case KindNumber: return parseNumber(*rules.row, text);
    case KindColour: return parseColour(rules, text);
    case KindList:
    case KindSortedList: {
      const auto& texts = rules.choices->DisplayTexts;
      const auto found = std::ranges::find(texts, text, &SharedText::view);
      if (found == texts.end()) return old;
      return rules.choices->StoredValues[static_cast<std::size_t>(found - texts.begin())];
    }
    default: break;
  }
  const auto inner = trimmed(text);
  return rules.BlankText == inner ? rules.BlankValue : SharedText(inner);
}

double Val(std::string_view text) {
  text.remove_prefix(std::min(text.find_first_not_of(" \t\r\n"), text.size()));
  const bool negative = text.starts_with('-');
  if (negative || text.starts_with('+')) text.remove_prefix(1);
  // from_chars would also accept "inf" and a second sign.
  if (text.empty() || (!isDigit(text.front()) && text.front() != '.')) return 0;
  double value = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
  if (error == std::errc::result_out_of_range) {
    const std::string_view number(text.data(), end);
    const auto exponent = number.find_first_of("eE");
    const bool tiny = exponent != std::string_view::npos && number.substr(exponent + 1).starts_with('-');
    value = tiny ? 0 : std::numeric_limits<double>::max();
  }
  return negative && value != 0 ? -value : value;
}

Swatch swatchOf(std::string_view value) {
  if (value == notSet) return {};
  std::array<std::uint8_t, 3> bytes{};
  for (std::size_t i = 0; i < bytes.size(); ++i) {
    const std::size_t at = 1 + 2 * i;
    if (at < value.size()) bytes[i] = hexPrefix(value.substr(at, 2));
  }
  return Rgb{bytes[0], bytes[1], bytes[2]};
}

std::string colourText(std::uint32_t colour) {
  constexpr std::string_view digits = "0123456789ABCDEF";
  std::string text = "#";
  for (const unsigned shift : {4U, 0U, 12U, 8U, 20U, 16U}) text += digits[colour >> shift & 0xFU];
  return text;
}

}  // namespace nimbrel
