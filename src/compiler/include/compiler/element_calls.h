#pragma once

#include <string>
#include <string_view>

#include "model/document.h"

/// The runtime calls that create the menu's elements. The elements must hold the numbers of their pictures and
/// styles. Text is emitted as is, apart from escaping; keeping the script valid is the author's responsibility.
namespace nimbrel {

/// Each function appends a call, without a line end. `submenuLevel` is the nesting depth of the container, or of
/// the container that holds the item.
void JavascriptInitString(const MenuObj& element, int submenuLevel, std::string& script);
void JavascriptInitString(const SubmenuObj& element, int submenuLevel, std::string& script);
void JavascriptInitString(const ItemObj& element, int submenuLevel, std::string& script);

/// Appends a call that creates the submenu as a main menu, for the cross-frame submenus file.
void JavascriptInitStringMimicMenu(const SubmenuObj& element, std::string& script);

/// Replaces leading and trailing blanks by entities, so that HTML does not collapse them.
std::string EscapeEdgeSpaces(std::string_view text);

/// Appends a line end and a call for the container and for each item; a submenu directly follows its item.
/// `afterContainer`, if not empty, is inserted as a line after the container's call.
void CollectElementStrings(const Document& document, const Node& container, bool includeSubmenus,
                           std::string_view afterContainer, std::string& script);

}  // namespace nimbrel
