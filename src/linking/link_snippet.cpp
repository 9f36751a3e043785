#include "linking/link_snippet.h"

#include <algorithm>
#include <cstddef>
#include <initializer_list>

#include "linking/relative_path.h"
#include "text/product.h"

namespace nimbrel {
namespace {

std::string joined(std::initializer_list<std::string_view> parts) {
  std::string text;
  for (const auto part : parts) text += part;
  return text;
}

}  // namespace

LinkNames::LinkNames(std::string_view pagePath, std::string_view compiledPath)
    : relativePath(RelativePath(pagePath, compiledPath)),
      folder(PathFolder(relativePath)),
      menu(PathFileName(relativePath)) {
  if (folder.empty()) folder = ".";
  // Quirk: removes three characters whatever they are, so "menu.html" becomes "menu.h".
  constexpr std::size_t extensionSize = 3;
  menu.resize(menu.size() - std::min(menu.size(), extensionSize));
}

std::string beginMarker(std::string_view menu) {
  return joined({"<!-- ******** BEGIN NIMBREL CODE FOR ", menu, " ******** -->"});
}

std::string endMarker(std::string_view menu) {
  return joined({"<!-- ******** END NIMBREL CODE FOR ", menu, " ******** -->"});
}

std::string BuildLinkSnippet(const LinkNames& names, std::string_view altUrl) {
  // Quirk: a semicolon precedes `nbrAltUrl`, so unlike the two variables before it, it is not declared.
  std::string lines = joined({
      "\r\n<img name='nbrMenuPathImg-",
      names.menu,
      "' id='nbrMenuPathImg-",
      names.menu,
      "' src='",
      names.folder,
      "/nbrmenupath.gif' alt=''>\r\n",
      "<script type='text/javascript'>var MenuLinkedBy='Nimbrel [2]', nbrBN='",
      productBuild,
      "'; nbrAltUrl='",
      altUrl,
      "';</script>\r\n",
      "<script src='",
      names.relativePath,
      "' language='JavaScript1.2' type='text/javascript'></script>\r\n",
      "<script type='text/javascript'>nbrBuildMenu();</script>\r\n",
  });
  if (!altUrl.empty()) {
    lines +=
        joined({"<noscript><meta http-equiv=\"refresh\" content=\"1; url=", altUrl, "\"></noscript>\r\n"});
  }
  return lines;
}

}  // namespace nimbrel
