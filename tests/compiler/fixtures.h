#pragma once

#include <initializer_list>
#include <string>
#include <string_view>
#include <utility>

#include "model/structure.h"

namespace nimbrel {

/// Zero bytes with others put in at their places, as the heads of picture files are made.
inline std::string picture(std::size_t size,
                           std::initializer_list<std::pair<std::size_t, std::string_view>> parts) {
  std::string bytes(size, '\0');
  for (const auto& [place, part] : parts) bytes.replace(place, part.size(), part);
  return bytes;
}

inline std::string gif(char width, char height) {
  return picture(13, {{0, "GIF89a"}, {6, {&width, 1}}, {8, {&height, 1}}});
}

/// The main menu with items I1 (submenu S4 with item I5), I2 (submenu S6 with item I7) and I3.
inline Document menuWithTwoSubmenus() {
  Document document;
  BuildDefaultDocument(document);
  for (const char* owner : {"I1", "I2"}) AddItem(document, AddSubmenu(document, owner)->Key);
  return document;
}

/// Each number is its property's position in the table, from 1, each text the property's name.
template <class E>
E withDistinctValues() {
  E element;
  std::uint8_t position = 0;
  eachProperty<E>([&](const Property<E>& property, auto field) {
    ++position;
    if constexpr (std::is_same_v<decltype(field), SharedText E::*>) {
      element.*field = property.name;
    } else {
      element.*field = position;
    }
  });
  return element;
}

template <class E>
E& get(Document& document, std::string_view key) {
  return *document.get<E>(*document.tvTreeView.find(key));
}

}  // namespace nimbrel
