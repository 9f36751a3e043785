#pragma once

#include <string>
#include <string_view>

#include "linking/link_snippet.h"
#include "linking/page_text.h"

/// The steps of linking on one page. Link code is found by its fixed texts alone, whatever else the page is.
namespace nimbrel {

/// Takes out the link code that earlier releases wrote, whatever menu it is of, each form once.
void RemoveOlderLinkBlocks(PageText& page);

/// Takes out the current link code of one menu, once. Other menus' code stays.
void RemoveCurrentLinkBlock(PageText& page, std::string_view menu);

/// Puts the link code ahead of the first `</body>`. Where there is none it goes ahead of `</html>`, else to the
/// end, within a body of its own; a library item (".lbi") gets it at its end without one.
void InsertLinkBlock(PageText& page, std::string_view pagePath, const LinkNames& names,
                     std::string_view altUrl);

/// All of the above in this order: from a page's bytes to those of the linked page, whose line ends are CR LF.
std::string linkedPage(std::string bytes, std::string_view pagePath, std::string_view compiledPath,
                       std::string_view altUrl);

}  // namespace nimbrel
