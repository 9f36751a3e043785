#pragma once

#include <string>
#include <string_view>

#include "linking/link_snippet.h"
#include "linking/page_text.h"

/// The steps of linking one page. Link code is found by its fixed text; the page is not parsed.
namespace nimbrel {

/// Removes link code that earlier releases wrote, of any menu, once for each form of it.
void RemoveOlderLinkBlocks(PageText& page);

/// Removes the current link code of one menu, once. The code of other menus stays.
void RemoveCurrentLinkBlock(PageText& page, std::string_view menu);

/// Inserts the link code before the first `</body>`. A page without one gets the code in a new body, before
/// `</html>` or at its end; a library item (".lbi") gets it at its end, without a body.
void InsertLinkBlock(PageText& page, std::string_view pagePath, const LinkNames& names,
                     std::string_view altUrl);

/// Applies all steps in this order. Returns the bytes of the linked page, with CR LF line ends.
std::string linkedPage(std::string bytes, std::string_view pagePath, std::string_view compiledPath,
                       std::string_view altUrl);

}  // namespace nimbrel
