#pragma once

#include <string>
#include <string_view>

#include "model/structure_editing.h"

/// Menus as plain text: a line an item, and below it those of its submenu, one tab further in. The address follows the
/// name, after a tab.
namespace nimbrel {

/// The contents of a clipboard as text, with "\n" at the end of each line.
std::string outlineText(const Clipboard& clipboard);

/// The items of a text that any program may have written. Lines that are further in than the one above are its submenu,
/// whether by tabs or blanks; the marks of lists ("-", "*", "+", a bullet) are left out, and so are empty lines. The items
/// look like `item`, their submenus like `submenu`.
Clipboard outlined(std::string_view text, const ItemObj& item, const SubmenuObj& submenu);

}  // namespace nimbrel
