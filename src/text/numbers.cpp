#include "text/numbers.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>

#include "text/ascii.h"

namespace nimbrel {
namespace {

constexpr int significantDigits = 7;

/// Like from_chars, but rejects words such as "inf" and "nan".
template <class T>
std::optional<T> parseReal(std::string_view text) {
  text = trimmed(text);
  if (!text.empty() && text.front() == '+') {
    text.remove_prefix(1);
    if (!text.empty() && text.front() == '-') return std::nullopt;
  }
  const auto unsignedPart = !text.empty() && text.front() == '-' ? text.substr(1) : text;
  if (unsignedPart.empty() || (!isDigit(unsignedPart.front()) && unsignedPart.front() != '.')) {
    return std::nullopt;
  }
  T value{};
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
  if (end != text.data() + text.size()) return std::nullopt;
  // A number too small for the type is zero, one too large is an error.
  constexpr auto none = std::string_view::npos;
  const bool hasNegativeExponent = text.find("e-") != none || text.find("E-") != none;
  if (error == std::errc::result_out_of_range && hasNegativeExponent) return T{0};
  return error == std::errc{} ? std::optional(value) : std::nullopt;
}

template <class T>
std::optional<T> parseWhole(std::string_view text) {
  const auto value = parseReal<double>(text);
  if (!value) return std::nullopt;
  const double rounded = std::nearbyint(*value);
  if (rounded < std::numeric_limits<T>::min() || rounded > std::numeric_limits<T>::max()) return std::nullopt;
  return static_cast<T>(rounded);
}

}  // namespace

void appendGeneral(std::string& out, std::uint8_t value) {
  std::array<char, 3> digits;
  const auto end = std::to_chars(digits.begin(), digits.end(), value).ptr;
  out.append(digits.begin(), end);
}

void appendGeneral(std::string& out, float value) {
  std::array<char, 32> buffer;
  constexpr float exactlyWhole = 1e6F;
  if (std::abs(value) < exactlyWhole && value == std::trunc(value)) {
    out.append(buffer.begin(), std::to_chars(buffer.begin(), buffer.end(), static_cast<int>(value)).ptr);
    return;
  }
  // "d.dddddde-xx" has the rounded digits and their exponent.
  const auto end = std::to_chars(buffer.begin(), buffer.end(), std::abs(value), std::chars_format::scientific,
                                 significantDigits - 1)
                       .ptr;
  const auto mark = std::find(buffer.begin(), end, 'e');
  int exponent = 0;
  std::from_chars(mark[1] == '+' ? mark + 2 : mark + 1, end, exponent);
  std::string digits(1, buffer[0]);
  digits.append(buffer.begin() + 2, mark);
  digits.erase(digits.find_last_not_of('0') + 1);

  if (value < 0) out += '-';
  if (exponent >= 15 || exponent < -4) {
    out += digits.front();
    if (digits.size() > 1) out.append(1, '.').append(digits, 1);
    const auto size = std::to_string(std::abs(exponent));
    out.append(exponent < 0 ? "E-" : "E+").append(size.size() < 2 ? "0" : "").append(size);
  } else if (exponent < 0) {
    out.append("0.").append(static_cast<std::size_t>(-exponent - 1), '0').append(digits);
  } else {
    const auto whole = static_cast<std::size_t>(exponent) + 1;
    if (digits.size() <= whole) {
      out.append(digits).append(whole - digits.size(), '0');
    } else {
      out.append(digits, 0, whole).append(1, '.').append(digits, whole);
    }
  }
}

std::string generalForm(float value) {
  std::string text;
  appendGeneral(text, value);
  return text;
}

std::string printedForm(std::int32_t value) { return (value < 0 ? "" : " ") + std::to_string(value) + " "; }

std::optional<float> parseSingle(std::string_view text) { return parseReal<float>(text); }

std::optional<std::uint8_t> parseByte(std::string_view text) {
  if (text.size() == 1 && isDigit(text[0])) return static_cast<std::uint8_t>(text[0] - '0');
  return parseWhole<std::uint8_t>(text);
}

std::optional<std::int32_t> parseInteger(std::string_view text) { return parseWhole<std::int32_t>(text); }

std::optional<bool> parseBoolean(std::string_view text) {
  if (equalIgnoringCase(text, "true")) return true;
  if (equalIgnoringCase(text, "false")) return false;
  if (const auto number = parseReal<double>(text)) return *number != 0;
  return std::nullopt;
}

}  // namespace nimbrel
