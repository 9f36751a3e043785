#pragma once

#include <string>
#include <string_view>

#include "model/document.h"
#include "model/subtree.h"
#include "text/message.h"

/// Operations that create and remove elements. The functions `new...` only say what to add. If no key numbers are left
/// all of them throw `std::overflow_error` and change nothing.
namespace nimbrel {

/// Throws the `std::overflow_error` of a document without free key numbers.
[[noreturn]] void throwUsedUp();

/// Adds a main menu as root.
Node& AddMainMenu(Document& document);

/// Returns why the node with that key cannot get a submenu, or nullptr if it can.
const Message* refusalOfSubmenu(const Document& document, std::string_view parentKey);

/// A submenu for an item, in the style of the menu that contains the item. Returns nullopt if `refusalOfSubmenu` refuses
/// it or there is no such node.
std::optional<Insertion> newSubmenu(const Document& document, std::string_view parentKey);
/// How a submenu of an item looks that hangs from this menu or is a sibling of this item.
SubmenuObj submenuLook(const Document& document, std::string_view key);
/// Adds it. Returns nullptr instead of nullopt.
Node* AddSubmenu(Document& document, std::string_view parentKey);

/// An item after the selected item, or at the end of the selected menu. Its style is that of the item before it, or else
/// of the item that owns its submenu. Returns nullopt if there is no such node, or if it is an item that a file has made
/// a root.
std::optional<Insertion> newItem(const Document& document, std::string_view selectedKey);
/// Adds it. Returns nullptr instead of nullopt.
Node* AddItem(Document& document, std::string_view selectedKey);

/// Removes a node and its descendants, from the tree and from `ElementColl`.
void RemoveSubtree(Document& document, std::string_view key);

/// Replaces all nodes by a main menu with three items. Compile settings stay.
void BuildDefaultDocument(Document& document);

/// The address of the items in the default document.
inline constexpr std::string_view homePage = "https://nimbrel.example/?source=app";

}  // namespace nimbrel
