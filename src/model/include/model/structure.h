#pragma once

#include <string>
#include <string_view>

#include "model/document.h"
#include "text/message.h"

/// Operations that create and remove elements. They change only the document: before a call the caller
/// commits pending edits, afterwards it selects a node and marks the document dirty. If no key numbers are
/// left they throw `std::overflow_error` and change nothing.
namespace nimbrel {

/// The number for a new key, as text. The caller increments the counter once it has used it.
std::string nextKeyNumber(const Document& document);
/// Throws the `std::overflow_error` of a document without free key numbers.
[[noreturn]] void throwUsedUp();

/// Adds a main menu as root.
Node& AddMainMenu(Document& document);

/// Returns why the node with that key cannot get a submenu, or nullptr if it can.
const Message* refusalOfSubmenu(const Document& document, std::string_view parentKey);

/// Adds a submenu to an item, in the style of the menu that contains the item. Returns nullptr if
/// `refusalOfSubmenu` refuses it or there is no such node.
Node* AddSubmenu(Document& document, std::string_view parentKey);

/// Adds an item after the selected item, or at the end of the selected menu. Its style is that of the item
/// before it, or else of the item that owns its submenu. Returns nullptr if there is no such node, or if it
/// is an item that a file has made a root.
Node* AddItem(Document& document, std::string_view selectedKey);

/// Removes a node and its descendants, from the tree and from `ElementColl`.
void RemoveSubtree(Document& document, std::string_view key);

/// Replaces all nodes by a main menu with three items. Compile settings stay.
void BuildDefaultDocument(Document& document);

/// The address of the items in the default document.
inline constexpr std::string_view homePage = "https://nimbrel.example/?source=app";

}  // namespace nimbrel
