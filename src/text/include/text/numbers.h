#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

/// Number texts as the menu file and the compiled script hold them. No locale is ever asked.
namespace nimbrel {

/// The general form: at most seven significant digits, no trailing zeros, a zero ahead of the point, "-" if
/// negative; from 1e15 on and below 1e-4 with an exponent of two digits at least (`1E-07`, `1E+15`).
/// The value is finite.
void appendGeneral(std::string& out, float value);
void appendGeneral(std::string& out, std::uint8_t value);
std::string generalForm(float value);

/// The printed form: a blank or "-", the digits, one blank behind.
std::string printedForm(std::int32_t value);

/// A number text is blanks, a sign, digits with a fraction, an exponent, blanks; all else gives none, and so
/// does a value out of the type's range. Whole numbers take the value rounded, ties to even.
std::optional<float> parseSingle(std::string_view text);
std::optional<std::uint8_t> parseByte(std::string_view text);
std::optional<std::int32_t> parseInteger(std::string_view text);

/// "True" and "False" in any case, or a number, of which not zero is true.
std::optional<bool> parseBoolean(std::string_view text);

}  // namespace nimbrel
