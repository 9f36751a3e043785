#pragma once

#include "model/document.h"
#include "require.h"

namespace nimbrel {

/// Requires that every node has an element of its kind, except nodes of an unknown kind, that every element has a
/// node, and that the next key is not in use.
inline void requireConsistent(const Document& document) {
  std::size_t nodes = 0;
  std::size_t elements = 0;
  for (const Node* node = document.tvTreeView.root(); node != nullptr; node = following(node)) {
    ++nodes;
    const Element* element = document.element(*node);
    require((element == nullptr) == (kindOf(node->Key) == Kind::None));
    require(element == nullptr || kindOf(*element) == kindOf(node->Key));
    elements += element == nullptr ? 0U : 1U;
    const int number = std::atoi(node->Key.c_str() + 1);
    require(number < document.NextKeyNumber || number == INT16_MAX);
  }
  require(nodes == document.tvTreeView.size());
  require(elements == document.ElementColl.size());
}

}  // namespace nimbrel
