#pragma once

#include <string>
#include <string_view>

namespace nimbrel {

/// The names of a compiled menu in a page.
struct LinkNames {
  LinkNames(std::string_view pagePath, std::string_view compiledPath);

  std::string relativePath;  ///< from the page to the compiled file
  std::string folder;        ///< the folder in that path, or "."
  std::string menu;  ///< the compiled file's name without its last three characters, whatever they are
};

/// The comments around the link code of a menu, without line ends.
std::string beginMarker(std::string_view menu);
std::string endMarker(std::string_view menu);

/// Returns the lines that load and build the compiled menu, with a line end before the first and after each.
/// Quirk: nothing is escaped, so an apostrophe in the alternative address breaks the page's script.
std::string BuildLinkSnippet(const LinkNames& names, std::string_view altUrl);

}  // namespace nimbrel
