#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <variant>

#include "model/item_obj.h"
#include "model/keyed_list.h"
#include "model/menu_obj.h"
#include "model/submenu_obj.h"
#include "model/tree.h"

namespace nimbrel {

/// The properties of one node. A new element has empty texts and zeros, not the defaults.
using Element = std::variant<MenuObj, SubmenuObj, ItemObj>;
using Elements = KeyedList<Element>;

constexpr Kind kindOf(const Element& element) {
  constexpr std::array kinds{Kind::Menu, Kind::Submenu, Kind::Item};  // in the variant's order
  return kinds[element.index()];
}

/// A new element of a kind, or nullopt for `Kind::None`.
std::optional<Element> newElement(Kind kind);

/// Set every property to its default.
void SetDefaultValues(MenuObj& element);
void SetDefaultValues(SubmenuObj& element);
void SetDefaultValues(ItemObj& element);

/// Copy the stored properties, with the exceptions marked in the source.
MenuObj clone(const MenuObj& element);
SubmenuObj clone(const SubmenuObj& element);
ItemObj clone(const ItemObj& element);
Element clone(const Element& element);

/// Copy the style of one element to another: its look, and between submenus also how they open. Content
/// (names, images in the content, tooltips, scripts, addresses) is not copied.
void CopyStyleValuesFromObject(MenuObj& target, const MenuObj& CopyItem);
void CopyStyleValuesFromObject(MenuObj& target, const SubmenuObj& CopyItem);
void CopyStyleValuesFromObject(SubmenuObj& target, const SubmenuObj& CopyItem);
void CopyStyleValuesFromObject(ItemObj& target, const ItemObj& CopyItem);
void CopyStyleValuesFromMenuObject(SubmenuObj& target, const MenuObj& CopyItem);

/// The result of `getImage` for a slot out of range.
inline constexpr std::string_view noMoreImages = "nomoreimages";

/// The path of the image in a slot, counted from 0 in table order.
std::string_view getImage(const Element& element, int slot);

/// Calls `f(path, slot)` for each image slot in order until it returns false.
template <class F>
void eachImage(const Element& element, F&& f) {
  std::visit(
      [&f]<class E>(const E& object) {
        std::size_t slot = 0;
        for (const auto* row : imageRows<E>) {
          if (!f(object.*std::get<SharedText E::*>(row->field), slot++)) return;
        }
      },
      element);
}

/// Gives an item one name for all of its states.
void setNames(ItemObj& item, const SharedText& name);

/// The name that an author types for an element: of an item, that of the state Normal.
const SharedText& nameOf(const Element& element);
/// Sets it, for an item in all states.
void setName(Element& element, const SharedText& name);

/// Removes the images that mark an item with a submenu.
void clearSubmenuImages(ItemObj& item);

/// The text that the node of this element shows.
SharedText NodeText(const Element& element);

}  // namespace nimbrel
