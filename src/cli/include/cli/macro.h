#pragma once

#include <cstddef>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "platform/asker.h"

namespace nimbrel {

/// An error in a macro. It ends the run.
class MacroFault : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

struct MacroLine {
  std::size_t number;              ///< starts at 1
  std::vector<std::string> words;  ///< one-byte text; never empty
};

/// Parses a macro, which is UTF-8. Words are separated by blanks; a word that contains a blank is quoted, with the
/// escapes \" \\ \n \r \t inside the quotes; "#" at the start of a word begins a comment. Throws `MacroFault` with the
/// number of the line, the first of which has the number `first`.
std::vector<MacroLine> parseMacro(std::string_view text, std::size_t first = 1);

/// The button's name in macros and transcripts.
const char* nameOf(BoxButton button);
/// Throws `MacroFault` if there is no such button.
BoxButton buttonNamed(std::string_view name);

}  // namespace nimbrel
