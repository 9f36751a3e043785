#include "editing/find.h"

#include <algorithm>
#include <array>
#include <string>
#include <utility>

namespace nimbrel {
namespace {

char foldedCase(char c) {
  const auto byte = static_cast<unsigned char>(c);
  constexpr unsigned char toLower = 0x20;
  constexpr unsigned char multiplication = 0xD7;  // the one sign among the capital letters
  const bool isCapital =
      (byte >= 'A' && byte <= 'Z') || (byte >= 0xC0 && byte <= 0xDE && byte != multiplication);
  return isCapital ? static_cast<char>(byte + toLower) : c;
}

/// Fonts, sizes, colours and border styles are no texts that an author looks for.
template <class E>
bool isSearched(const Property<E>& property) {
  return property.form != FileForm::Raw;
}

template <class E>
TextKind kindOfText(const Property<E>& property) {
  const auto name = property.name;
  if (property.isImage) return TextKind::Pictures;
  if (name.starts_with("Javascript")) return TextKind::Commands;
  if (name == "URL" || name == "TargetFrame") return TextKind::Addresses;
  return name.find("Tooltip") != std::string_view::npos || name == "StatusBarText" ? TextKind::Hints
                                                                                   : TextKind::Names;
}

/// Returns where `wanted` begins in `text`, or npos.
std::size_t searchText(std::string_view text, std::string_view wanted) {
  const auto same = [](char a, char b) { return foldedCase(a) == foldedCase(b); };
  const auto* found = std::search(text.begin(), text.end(), wanted.begin(), wanted.end(), same);
  return found == text.end() ? std::string_view::npos : static_cast<std::size_t>(found - text.begin());
}

/// Returns how many were replaced in `text`.
std::size_t replaceIn(std::string& text, std::string_view wanted, std::string_view by) {
  std::size_t count = 0;
  std::string result;
  std::string_view rest = text;
  for (auto found = searchText(rest, wanted); found != std::string_view::npos;
       found = searchText(rest, wanted)) {
    result.append(rest.substr(0, found)).append(by);
    rest.remove_prefix(found + wanted.size());
    ++count;
  }
  text = result.append(rest);
  return count;
}

template <class E>
std::size_t replaceIn(E& object, std::string_view wanted, std::string_view by, TextKind kind) {
  std::size_t count = 0;
  eachProperty<E>([&](const Property<E>& property, auto field) {
    if constexpr (std::is_same_v<decltype(field), SharedText E::*>) {
      const bool isWanted = isSearched(property) && (kind == TextKind::All || kind == kindOfText(property));
      if (!isWanted || object.*field == notSet || !containsText(object.*field, wanted)) return;
      auto text = (object.*field).str();
      count += replaceIn(text, wanted, by);
      const auto* initial = std::get_if<std::string_view>(&property.initial);
      const bool canBeUnset = initial != nullptr && *initial == notSet;
      object.*field = text.empty() && canBeUnset ? SharedText(notSet) : SharedText(text);
    }
  });
  return count;
}

bool elementContains(const Element& element, std::string_view wanted) {
  return std::visit(
      [&]<class E>(const E& object) {
        bool isFound = false;
        eachProperty<E>([&](const Property<E>& property, auto field) {
          if constexpr (std::is_same_v<decltype(field), SharedText E::*>) {
            const auto& text = object.*field;
            isFound = isFound || (isSearched(property) && text != notSet && containsText(text, wanted));
          }
        });
        return isFound;
      },
      element);
}

}  // namespace

bool containsText(std::string_view text, std::string_view wanted) {
  if (wanted.empty()) return false;
  return searchText(text, wanted) != std::string_view::npos;
}

std::vector<const Node*> nodesWith(const Document& document, std::string_view wanted) {
  std::vector<const Node*> found;
  for (const Node* node = document.tvTreeView.root(); node != nullptr; node = following(node)) {
    const auto* element = document.element(*node);
    if (containsText(node->Text, wanted) || (element != nullptr && elementContains(*element, wanted))) {
      found.push_back(node);
    }
  }
  return found;
}

std::optional<TextKind> textKindNamed(std::string_view name) {
  constexpr std::array<std::string_view, 6> names{"all",   "names",    "addresses",
                                                  "hints", "commands", "pictures"};
  const auto* found = std::ranges::find(names, name);
  if (found == names.end()) return std::nullopt;
  return static_cast<TextKind>(found - names.begin());
}

Replacing replacing(const Document& document, std::string_view wanted, std::string_view by, TextKind kind) {
  Replacing result{Edit("Replace")};
  if (wanted.empty()) return result;
  for (const Node* node = document.tvTreeView.root(); node != nullptr; node = following(node)) {
    const auto* old = document.element(*node);
    if (old == nullptr || !elementContains(*old, wanted)) continue;
    Element element = *old;
    result.count += std::visit([&](auto& object) { return replaceIn(object, wanted, by, kind); }, element);
    const bool hasNewName = NodeText(element) != NodeText(*old);
    auto text = hasNewName ? NodeText(element) : node->Text;
    result.edit.set(document, *node, std::move(element), std::move(text));
  }
  return result;
}

}  // namespace nimbrel
