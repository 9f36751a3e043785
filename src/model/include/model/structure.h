#pragma once

#include <string>
#include <string_view>

#include "model/document.h"
#include "text/message.h"

/// The operations that create and remove elements. They change the document alone: committing a pending edit
/// ahead of them, selecting and marking the document dirty behind them is their caller's. Where the key
/// counter is used up they throw `std::overflow_error` and nothing is changed.
namespace nimbrel {

/// The number for a new key, as text; whoever uses it steps the counter.
std::string nextKeyNumber(const Document& document);
/// Throws the error of a counter that is used up.
[[noreturn]] void throwUsedUp();

/// Adds the main menu as root.
Node& AddMainMenu(Document& document);

/// Why the node of that key can take no submenu; none if it can.
const Message* refusalOfSubmenu(const Document& document, std::string_view parentKey);

/// Adds a submenu to an item, dressed as the container of the item; none if it is refused.
Node* AddSubmenu(Document& document, std::string_view parentKey);

/// Adds an item behind the selected item, or as the last of the selected menu, dressed as the item ahead of
/// it, else as the item that its submenu hangs from. None if no node has that key, or
/// if it is an item that a file has made a root.
Node* AddItem(Document& document, std::string_view selectedKey);

/// Removes a node and all that hangs from it, from the tree and from `ElementColl`.
void RemoveSubtree(Document& document, std::string_view key);

/// Empties the document and fills it with a main menu and three items. Compile settings stay.
void BuildDefaultDocument(Document& document);

/// Where the items of the default document lead.
inline constexpr std::string_view homePage = "https://nimbrel.example/?source=app";

}  // namespace nimbrel
