#pragma once

#include <string>

#include "model/element.h"

namespace nimbrel {

/// The keys of a node, its descendants and the siblings after it: "M0(I1 I2(S4(I5)) I3)".
inline std::string shape(const Node* node) {
  std::string text;
  for (; node != nullptr; node = node->Next()) {
    text += (node->Previous() == nullptr ? "" : " ") + node->Key;
    if (node->Child() != nullptr) text += "(" + shape(node->Child()) + ")";
  }
  return text;
}

inline std::string shape(const Tree& tree) { return shape(tree.root()); }

/// An element in which each text is the name of its property and each number the position of its property in
/// the table, from 1. Another `offset` gives other values.
template <class E>
E withDistinctValues(std::uint8_t offset = 0) {
  E element;
  std::uint8_t position = offset;
  eachProperty<E>([&](const Property<E>& property, auto field) {
    ++position;
    if constexpr (std::is_same_v<decltype(field), SharedText E::*>) {
      element.*field = std::string(property.name).append(offset, '+');
    } else {
      element.*field = position;
    }
  });
  return element;
}

}  // namespace nimbrel
