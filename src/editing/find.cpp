#include "editing/find.h"

#include <algorithm>

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
  const auto found = std::ranges::search(text, wanted, {}, foldedCase, foldedCase);
  return !found.empty();
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

}  // namespace nimbrel
