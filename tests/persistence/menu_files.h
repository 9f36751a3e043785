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
    std::filesystem::path(NIMBREL_TEST_DATA) / "golden" / "menu-files";

inline std::string bytesOf(const std::filesystem::path& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

/// The files or folders of a folder, less the texts that say what is expected of them.
inline std::vector<std::filesystem::path> casesIn(const std::string& folder) {
  std::vector<std::filesystem::path> cases;
  for (const auto& entry : std::filesystem::directory_iterator(goldenMenuFiles / folder)) {
    if (entry.path().extension() != ".txt") cases.push_back(entry);
  }
  return cases;
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

}  // namespace nimbrel
