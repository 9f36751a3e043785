#pragma once

#include <string>
#include <string_view>

#include "compiler/compiled_menu.h"

/// The runtime calls that create the menu's elements. Text is emitted as is, apart from escaping; keeping the script valid is the author's responsibility.
namespace nimbrel {

/// Each function appends a call, without a line end. `submenuLevel` is the nesting depth of the container, or of
/// the container that holds the item.
void JavascriptInitString(const MenuObj& element, const ElementNumbers& numbers, int submenuLevel,
                          std::string& script);
void JavascriptInitString(const SubmenuObj& element, const ElementNumbers& numbers, int submenuLevel,
                          std::string& script);
void JavascriptInitString(const ItemObj& element, const ElementNumbers& numbers, int submenuLevel,
                          std::string& script);

/// Appends a call that creates the submenu as a main menu, for the cross-frame submenus file.
void JavascriptInitStringMimicMenu(const SubmenuObj& element, const ElementNumbers& numbers,
                                   std::string& script);

/// Replaces leading and trailing blanks by entities, so that HTML does not collapse them.
std::string EscapeEdgeSpaces(std::string_view text);

/// Appends a line end and a call for each element of a group, beginning with its menu or submenu. `afterContainer`, if not empty, is inserted as a line after the container's call.
void CollectElementStrings(const CompiledGroup& group, std::string_view afterContainer, std::string& script);

}  // namespace nimbrel
