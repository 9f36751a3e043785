#pragma once

#include <string>
#include <string_view>

#include "model/document.h"

/// The calls of the client runtime that create the elements. The numbers of pictures and styles must be in
/// the elements. A text goes through whatever it holds: what it does to the script is the author's matter.
namespace nimbrel {

/// Each appends a call, without a line end. The level is the nesting depth of the menu: of the container itself, or of the one that the item is in.
void JavascriptInitString(const MenuObj& element, int submenuLevel, std::string& script);
void JavascriptInitString(const SubmenuObj& element, int submenuLevel, std::string& script);
void JavascriptInitString(const ItemObj& element, int submenuLevel, std::string& script);

/// A submenu as a main menu of its own, for the cross-frame submenus file.
void JavascriptInitStringMimicMenu(const SubmenuObj& element, std::string& script);

/// Makes the blanks at the edges of a name survive in HTML.
std::string EscapeEdgeSpaces(std::string_view text);

/// Appends a line end and a call for the container, then for each item, a submenu directly behind its item.
/// `behindContainer` is put behind the first call as a line of its own, if it is not empty.
void CollectElementStrings(const Document& document, const Node& container, bool includeSubmenus,
                           std::string_view behindContainer, std::string& script);

}  // namespace nimbrel
