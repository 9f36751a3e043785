#pragma once

#include <algorithm>
#include <filesystem>
#include <string>
#include <vector>

#include "persistence/menu_file.h"
#include "support/bytes_of.h"

/// The golden menu files, and helpers to read them.
namespace nimbrel {

inline const std::filesystem::path goldenMenuFiles =
    std::filesystem::path(NIMBREL_TEST_DATA) / "golden" / "menu-files";

/// The files or folders in a folder, without the texts with the expected messages.
inline std::vector<std::filesystem::path> casesIn(const std::string& folder) {
  std::vector<std::filesystem::path> cases;
  for (const auto& entry : std::filesystem::directory_iterator(goldenMenuFiles / folder)) {
    if (entry.path().extension() != ".txt") cases.push_back(entry);
  }
  return cases;
}

/// Reads bytes as of a file in C:\menus.
inline void readBytes(std::string_view bytes, Document& document, ReadNotes& notes) {
  SubmenuCarryOver carryOver;
  readMenuFile(bytes, "C:\\menus\\menu.nbr", "C:\\menus", carryOver, document, notes);
}

inline Document readBytes(std::string_view bytes) {
  Document document;
  ReadNotes notes;
  readBytes(bytes, document, notes);
  return document;
}

}  // namespace nimbrel
