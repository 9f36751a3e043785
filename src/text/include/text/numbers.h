#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

/// Numbers as text, as menu files and compiled scripts store them. Independent of the locale.
namespace nimbrel {

/// The general form: at most seven significant digits, no trailing zeros, a zero before the point, "-" if
/// negative. From 1e15 up and below 1e-4 it has an exponent of at least two digits (`1E-07`, `1E+15`).
/// `value` must be finite.
void appendGeneral(std::string& out, float value);
void appendGeneral(std::string& out, std::uint8_t value);
std::string generalForm(float value);

/// The printed form: a blank or "-", the digits, a blank.
std::string printedForm(std::int32_t value);

/// Parse a number with optional blanks around it, sign, fraction and exponent. Return nullopt for any other
/// text and for a value out of range. `parseByte` and `parseInteger` round to the nearest whole number, ties
/// to even.
std::optional<float> parseSingle(std::string_view text);
std::optional<std::uint8_t> parseByte(std::string_view text);
std::optional<std::int32_t> parseInteger(std::string_view text);

/// Parses "True" or "False" in any case, or a number (zero is false). Returns nullopt for any other text.
std::optional<bool> parseBoolean(std::string_view text);

}  // namespace nimbrel
