#include "compiler/script_literals.h"

#include <algorithm>
#include <array>
#include <vector>

#include "text/ascii.h"

namespace nimbrel {
namespace {

/// How a value is written into the script.
enum class Literal : std::uint8_t {
  None,     ///< not at all, or with all that is special escaped
  Single,   ///< between single quotes, as it is
  Double,   ///< between double quotes, as it is
  Command,  ///< the same, with single quotes in place of its double ones
};

Literal literalOf(std::string_view name, FileForm form, bool isImage) {
  if (isImage) return Literal::None;  // only the name of the picture's file, see `inspect`
  if (name.starts_with("Javascript")) return Literal::Command;
  if (name == "URL" || name == "TargetFrame") return Literal::Double;
  return form == FileForm::Raw ? Literal::Single : Literal::None;
}

template <class E>
const auto& literals() {
  static const auto all = [] {
    std::vector<Literal> each;
    for (const auto& property : E::properties()) {
      each.push_back(literalOf(property.name, property.form, property.isImage));
    }
    return each;
  }();
  return all;
}

bool isHex(std::string_view digits) {
  return std::ranges::all_of(
      digits, [](char c) { return isDigit(c) || (c >= 'a' && c <= 'f') || (c >= 'A' && c <= 'F'); });
}

/// The length of the escape that `text` begins with, or 0 if it begins none that JavaScript knows.
std::size_t escapeLength(std::string_view text) {
  if (text.size() < 2) return 0;
  constexpr std::size_t withTwo = 4;
  constexpr std::size_t withFour = 6;
  switch (text[1]) {
    case 'x': return text.size() >= withTwo && isHex(text.substr(2, 2)) ? withTwo : 0;
    case 'u': {
      if (text.size() >= withFour && isHex(text.substr(2, 4))) return withFour;
      const auto end = text.find('}');
      const bool isBraced = text.size() > 2 && text[2] == '{' && end != std::string_view::npos && end > 3;
      return isBraced && isHex(text.substr(3, end - 3)) ? end + 1 : 0;
    }
    default: return 2;
  }
}

/// Most values are the very text of the element before, which was found good.
template <class E>
class Scanner {
 public:
  template <class F>
  void scan(const E& element, F&& found) {
    std::size_t index = 0;
    eachProperty<E>([&](const Property<E>& property, auto field) {
      const auto literal = literals<E>()[index];
      auto& good = good_[index++];
      if constexpr (std::is_same_v<decltype(field), SharedText E::*>) {
        const auto text = (element.*field).view();
        if (literal == Literal::None || text.data() == good) return;
        const char quote = literal == Literal::Single ? '\'' : literal == Literal::Double ? '"' : '\0';
        if (const auto* flaw = flawOfLiteral(text, quote)) {
          found(property.name, flaw);
        } else {
          good = text.data();
        }
      }
    });
  }

 private:
  std::vector<const char*> good_ = std::vector<const char*>(E::properties().size());
};

}  // namespace

const char* flawOfLiteral(std::string_view text, char quote) {
  for (std::size_t i = text.find_first_of("\\\"'\r\n"); i < text.size(); ++i) {
    const char c = text[i];
    if (c == '\r' || c == '\n') return "holds a line break";
    if (c == quote) return c == '"' ? "holds a double quote" : "holds a single quote";
    if (c != '\\') continue;
    if (i + 1 == text.size()) return "ends in a backslash";
    const auto escape = escapeLength(text.substr(i));
    if (escape == 0) return "holds a backslash that begins no escape";
    if (text[i + 1] == '\r' || text[i + 1] == '\n') return "holds a line break";
    i += escape - 1;
  }
  return nullptr;
}

Findings flawedLiterals(const Document& document, const std::string& path) {
  Findings findings;
  const auto add = [&](const std::string& what, const char* flaw) {
    findings.push_back({path, what + " " + flaw + ", which breaks the script"});
  };
  const auto& settings = document.settings;
  const std::array header{std::pair("nbrLibraryPath", &settings.nbrLibraryPath),
                          std::pair("nbrImagePath", &settings.nbrImagePath),
                          std::pair("nbrSubmenusFrame", &settings.nbrSubmenusFrame)};
  for (const auto& [name, value] : header) {
    if (const auto* flaw = flawOfLiteral(*value, '\'')) add(name, flaw);
  }
  std::tuple<Scanner<MenuObj>, Scanner<SubmenuObj>, Scanner<ItemObj>> scanners;
  for (const Node* node = document.tvTreeView.root(); node != nullptr; node = following(node)) {
    const auto* element = document.element(*node);
    if (element == nullptr) continue;
    std::visit(
        [&]<class E>(const E& object) {
          std::get<Scanner<E>>(scanners).scan(object, [&](std::string_view name, const char* flaw) {
            add(std::string(name) + " of " + node->Key, flaw);
          });
        },
        *element);
  }
  return findings;
}

}  // namespace nimbrel
