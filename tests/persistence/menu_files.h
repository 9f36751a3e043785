#pragma once

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include "persistence/menu_file.h"

/// The golden menu files, and what a test asks of any of them.
namespace nimbrel {

inline const std::filesystem::path goldenMenuFiles =
    std::filesystem::path(NIMBREL_TEST_DATA) / ".." / "golden" / "menu-files";

inline std::string bytesOf(const std::filesystem::path& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

/// The lines of a text of ours, which end in line feeds.
inline std::vector<std::string> linesOf(const std::string& text) {
  std::vector<std::string> lines;
  for (std::size_t begin = 0; begin < text.size();) {
    const auto end = std::min(text.find('\n', begin), text.size());
    lines.push_back(text.substr(begin, end - begin));
    begin = end + 1;
  }
  return lines;
}

/// In the order of their names.
inline std::vector<std::filesystem::path> entriesOf(const std::string& folder) {
  std::vector<std::filesystem::path> entries;
  for (const auto& entry : std::filesystem::directory_iterator(goldenMenuFiles / folder))
    entries.push_back(entry);
  std::ranges::sort(entries);
  return entries;
}

/// Reads as if the file lay in C:\menus.
inline void readBytes(std::string_view bytes, Document& document, Findings& notes) {
  SubmenuCarryOver carryOver;
  readMenuFile(bytes, "C:\\menus\\menu.nbr", "C:\\menus", carryOver, document, notes);
}

inline Document readBytes(std::string_view bytes) {
  Document document;
  Findings notes;
  readBytes(bytes, document, notes);
  return document;
}

inline std::vector<std::string> keysOf(const Tree& tree) {
  std::vector<std::string> keys;
  for (const Node* node = tree.root(); node != nullptr; node = following(node)) keys.push_back(node->Key);
  return keys;
}

}  // namespace nimbrel
