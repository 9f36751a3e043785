#pragma once

#include <string>
#include <string_view>

namespace nimbrel {

/// What one page calls one compiled menu.
struct LinkNames {
  LinkNames(std::string_view pagePath, std::string_view compiledPath);

  std::string relativePath;  ///< from the page to the compiled file
  std::string folder;        ///< of that path, "." if it has none
  std::string menu;          ///< the compiled file's name less its last three characters, whatever they are
};

/// The comments around the lines of one menu in a page, without line ends.
std::string beginMarker(std::string_view menu);
std::string endMarker(std::string_view menu);

/// The lines that load the compiled menu and build it, with a line end ahead of the first and behind each.
/// kept: nothing is escaped, so an apostrophe in the alternative address breaks the page's script.
std::string BuildLinkSnippet(const LinkNames& names, std::string_view altUrl);

}  // namespace nimbrel
