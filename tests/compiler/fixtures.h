#pragma once

#include <initializer_list>
#include <string>
#include <string_view>
#include <utility>

#include "model/fixtures.h"
#include "model/structure.h"

namespace nimbrel {

/// Zero bytes, with `parts` written at their offsets. Makes headers of picture files.
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

template <class E>
E& get(Document& document, std::string_view key) {
  return *document.get<E>(*document.tvTreeView.find(key));
}

}  // namespace nimbrel
