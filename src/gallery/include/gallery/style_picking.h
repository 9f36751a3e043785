#pragma once

#include "gallery/style_file.h"
#include "model/document.h"
#include "text/message.h"

/// Looks that travel from element to element, or from a style to the document. All change the document alone.
namespace nimbrel {

/// The look that was picked last. It outlives the document that it was taken from.
struct StylePicking {
  float PickedStyleKind = 0;  ///< 0 none, 1 a container's, 2 an item's
  /// kept: it never has defaults, so a main menu's look, which has no way of opening, brings a submenu zeros.
  SubmenuObj PickedSubmenu;
  ItemObj PickedItem;
};

inline constexpr float containerStyle = 1;
inline constexpr float itemStyle = 2;

void PickStyle(const Element& element, StylePicking& picking);

/// Why what was picked cannot be applied to a node of that key; none if it can. kept: an item's look on the main
/// menu is not refused, and the main menu takes the container's that was picked before.
const Message* refusalOfPickedStyle(const StylePicking& picking, std::string_view key);
/// Not for an element that is refused.
void ApplyPickedStyle(const StylePicking& picking, Element& element);

/// Which elements take a style of the gallery.
enum class StyleScope { Menu, Submenu, Item };

/// Dresses the whole tree, the submenu `node` with its items, or the item `node` alone. Items without a submenu
/// lose the picture that marks one; kept: not if the item alone is dressed.
void ApplyStyle(Document& document, Node& node, StyleScope scope, const MenuStyle& style);

}  // namespace nimbrel
