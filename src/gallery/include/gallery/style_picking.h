#pragma once

#include <functional>

#include "gallery/style_file.h"
#include "model/document.h"
#include "text/message.h"

/// Copying styles between elements, and from a style file to the document. Only the document is changed.
namespace nimbrel {

/// The style picked last. Independent of the document it comes from.
struct StylePicking {
  float PickedStyleKind = 0;  ///< 0 none, `containerStyle` or `itemStyle`
  /// Quirk: starts with zeros, not defaults. The style of a main menu does not say how submenus open, so a
  /// submenu gets zeros for that.
  SubmenuObj PickedSubmenu;
  ItemObj PickedItem;
};

inline constexpr float containerStyle = 1;
inline constexpr float itemStyle = 2;

/// Stores the style of an element in `picking`.
void PickStyle(const Element& element, StylePicking& picking);

/// Returns why the picked style cannot be applied to the node with that key, or nullptr if it can.
/// Quirk: an item's style on the main menu is not refused; the main menu gets the container's style picked
/// before.
const Message* refusalOfPickedStyle(const StylePicking& picking, std::string_view key);
/// Applies the picked style. `refusalOfPickedStyle` must not refuse the element.
void ApplyPickedStyle(const StylePicking& picking, Element& element);

/// The elements that a style is applied to.
enum class StyleScope { Menu, Submenu, Item };

/// Calls `f` with each node in the scope and its element in the style: of the whole tree, of the submenu `node` and its
/// items, or only of the item `node`. Items without a submenu lose the images that mark one.
/// Quirk: with `StyleScope::Item` the item keeps these images.
void eachStyled(const Document& document, const Node& node, StyleScope scope, const MenuStyle& style,
                const std::function<void(const Node&, Element)>& f);
/// Stores these elements in the document.
void ApplyStyle(Document& document, Node& node, StyleScope scope, const MenuStyle& style);

}  // namespace nimbrel
