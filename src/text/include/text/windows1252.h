#pragma once

#include <string>
#include <string_view>

/// Conversion between one-byte text (Windows-1252), used in memory and in files, and UTF-8, used by keyboard,
/// screen and file names.
///
/// A character that the set lacks is stored as its decimal HTML reference (`&#1078;`), so authors can use any
/// writing system and browsers show it. Bytes 129, 141, 143, 144 and 157 have no character in the set; they
/// map to the control characters of the same number. One-byte text survives a round trip through UTF-8.
namespace nimbrel {

/// Converts to UTF-8. References in exactly the form that `fromUtf8` writes become characters.
std::string toUtf8(std::string_view oneByte);

/// Converts from UTF-8. A byte that is not valid UTF-8 is taken as a byte of the set.
std::string fromUtf8(std::string_view utf8);

/// Convert file names. Any host name survives the round trip, whatever its bytes: backslashes, invalid UTF-8
/// and text that looks like a reference are stored as references too.
std::string nameToHost(std::string_view oneByte);
std::string nameFromHost(std::string_view host);

}  // namespace nimbrel
