#pragma once

#include <string>
#include <string_view>

/// The codec between one-byte text (Windows-1252), which the library holds and files store, and UTF-8, which
/// keyboard, screen and file names speak.
///
/// A character that the set lacks is held as its decimal HTML reference (`&#1078;`), so that any script can
/// be written and a browser shows it. Bytes 129, 141, 143, 144 and 157 have no character in the set and stand
/// for the controls of the same number. One-byte text comes back from UTF-8 as it was.
namespace nimbrel {

/// UTF-8 of one-byte text; references of the exact form that `fromUtf8` writes become their characters.
std::string toUtf8(std::string_view oneByte);

/// One-byte text of UTF-8. A byte that is no part of UTF-8 is taken as the byte it is.
std::string fromUtf8(std::string_view utf8);

/// File names, both ways without loss whatever bytes the host's name has: what would read as a reference, a
/// backslash or broken UTF-8 in it is held as a reference too.
std::string nameToHost(std::string_view oneByte);
std::string nameFromHost(std::string_view host);

}  // namespace nimbrel
