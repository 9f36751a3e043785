#include "cli/macro.h"

#include <algorithm>
#include <array>

#include "text/windows1252.h"

namespace nimbrel {
namespace {

constexpr std::array buttonNames{"OK", "Yes", "No", "Cancel", "Help", "Overwrite", "Save As", "Reload"};

bool isBlank(char c) { return c == ' ' || c == '\t' || c == '\r'; }

/// Splits a line into words.
class LineReader {
 public:
  explicit LineReader(std::string_view line) : rest_(line) {}

  bool next(std::string& word) {
    while (!rest_.empty() && isBlank(rest_.front())) rest_.remove_prefix(1);
    if (rest_.empty() || rest_.front() == '#') return false;
    word = rest_.front() == '"' ? quoted() : plain();
    return true;
  }

 private:
  std::string plain() {
    std::size_t end = 0;
    while (end < rest_.size() && !isBlank(rest_[end])) ++end;
    std::string word(rest_.substr(0, end));
    rest_.remove_prefix(end);
    return word;
  }

  std::string quoted() {
    std::string word;
    rest_.remove_prefix(1);
    while (!rest_.empty() && rest_.front() != '"') word += character();
    if (rest_.empty()) throw MacroFault("a quoted word has no closing quote");
    rest_.remove_prefix(1);
    if (!rest_.empty() && !isBlank(rest_.front())) throw MacroFault("a word goes on after its closing quote");
    return word;
  }

  char character() {
    char c = rest_.front();
    rest_.remove_prefix(1);
    if (c != '\\') return c;
    if (rest_.empty()) throw MacroFault("a quoted word has no closing quote");
    c = rest_.front();
    rest_.remove_prefix(1);
    switch (c) {
      case 'n': return '\n';
      case 'r': return '\r';
      case 't': return '\t';
      case '"':
      case '\\': return c;
      default: throw MacroFault(std::string("unknown escape \\") + c);
    }
  }

  std::string_view rest_;
};

}  // namespace

std::vector<MacroLine> parseMacro(std::string_view text, std::size_t first) {
  std::vector<MacroLine> lines;
  for (std::size_t number = first; !text.empty(); ++number) {
    const auto end = text.find('\n');
    LineReader reader(text.substr(0, end));
    MacroLine line{number, {}};
    try {
      for (std::string word; reader.next(word);) line.words.push_back(fromUtf8(word));
    } catch (const MacroFault& fault) {
      throw MacroFault("line " + std::to_string(number) + ": " + fault.what());
    }
    if (!line.words.empty()) lines.push_back(std::move(line));
    text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
  }
  return lines;
}

const char* nameOf(BoxButton button) { return buttonNames.at(static_cast<std::size_t>(button)); }

BoxButton buttonNamed(std::string_view name) {
  const auto* found = std::ranges::find(buttonNames, name);
  if (found == buttonNames.end()) throw MacroFault("no button: " + std::string(name));
  return static_cast<BoxButton>(found - buttonNames.begin());
}

}  // namespace nimbrel
