#pragma once

#include <cstddef>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "platform/asker.h"

namespace nimbrel {

/// What is wrong with a macro, which ends its run.
class MacroFault : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

struct MacroLine {
  std::size_t number;              ///< from 1
  std::vector<std::string> words;  ///< one-byte text; at least one
};

/// The statements of a macro, which is UTF-8: words parted by blanks, quoted whole where they hold one, with
/// \" \\ \n \r \t inside the quotes; "#" at the start of a word begins a comment. Throws `MacroFault`, which names
/// the line.
std::vector<MacroLine> parseMacro(std::string_view text);

/// The button's name in macros and transcripts.
const char* nameOf(BoxButton button);
/// Throws `MacroFault` if there is no such button.
BoxButton buttonNamed(std::string_view name);

}  // namespace nimbrel
