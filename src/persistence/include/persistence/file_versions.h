#pragma once

#include <algorithm>
#include <array>
#include <string_view>

#include "model/properties.h"

/// The versions of the menu file and the style file. Which values a version stores follows from the column
/// `since` of the tables in `model`.
namespace nimbrel {

/// How files of one version begin, and how their parts end.
struct FileFormat {
  FileVersion version;
  std::string_view menuMagic;   ///< the first value of a menu file
  std::string_view styleMagic;  ///< the first value of a style file; empty: there were none of this version
  /// "[Menu Tree]" ends the header and a closing marker each record, so that a later version can add values.
  /// Without marks a reader takes exactly the values of the version.
  bool hasEndMarks;
};

/// One row for each version, in order.
inline constexpr auto fileFormats = std::to_array<FileFormat>({
    {V110, "nbr110", "nbs110", false},
    {V120, "nbr120", "nbs120", false},
    {V130, "nbr130", "", false},
    {V200, "nbr200", "nbs200", true},
});

/// The version that is written.
inline constexpr const FileFormat& currentFormat = fileFormats.back();

/// Return the row with that magic, or nullptr if there is none.
constexpr const FileFormat* formatWith(std::string_view FileFormat::*column, std::string_view magic) {
  const auto* found = std::ranges::find(fileFormats, magic, column);
  return magic.empty() || found == fileFormats.end() ? nullptr : found;
}
constexpr const FileFormat* formatOfMenuFile(std::string_view magic) {
  return formatWith(&FileFormat::menuMagic, magic);
}
constexpr const FileFormat* formatOfStyleFile(std::string_view magic) {
  return formatWith(&FileFormat::styleMagic, magic);
}

}  // namespace nimbrel
