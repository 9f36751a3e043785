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

/// What a key of the document stands for. A new one, by its letter, has no properties set.
using Element = std::variant<MenuObj, SubmenuObj, ItemObj>;
using Elements = KeyedList<Element>;

constexpr Kind kindOf(const Element& element) {
  constexpr std::array kinds{Kind::Menu, Kind::Submenu, Kind::Item};  // in the variant's order
  return kinds[element.index()];
}

/// An empty element of a kind; none for `Kind::None`.
std::optional<Element> newElement(Kind kind);

/// Sets every stored property to its default; what a compile calculates stays.
void SetDefaultValues(MenuObj& element);
void SetDefaultValues(SubmenuObj& element);
void SetDefaultValues(ItemObj& element);

/// A copy of the stored properties, with the exceptions that stand beside each.
MenuObj clone(const MenuObj& element);
SubmenuObj clone(const SubmenuObj& element);
ItemObj clone(const ItemObj& element);
Element clone(const Element& element);

/// Copies the look, and between submenus the way of opening too. Content (names, images of the content,
/// tooltips, scripts, addresses) never travels.
void CopyStyleValuesFromObject(MenuObj& target, const MenuObj& CopyItem);
void CopyStyleValuesFromObject(MenuObj& target, const SubmenuObj& CopyItem);
void CopyStyleValuesFromObject(SubmenuObj& target, const SubmenuObj& CopyItem);
void CopyStyleValuesFromObject(ItemObj& target, const ItemObj& CopyItem);
void CopyStyleValuesFromMenuObject(SubmenuObj& target, const MenuObj& CopyItem);

/// What `getImage` gives for a slot past the last.
inline constexpr std::string_view noMoreImages = "nomoreimages";

/// The path in an image slot, counted from 0 in table order.
std::string_view getImage(const Element& element, int slot);

/// Stores the number of the slot's image in the compiled menu; past the last slot it does nothing.
void setImageNo(Element& element, int slot, float number);

/// Calls `f(path, number)` for each image slot in order, with the number to be set, until `f` says false.
template <class F>
void eachImage(Element& element, F&& f) {
  std::visit(
      [&f]<class E>(E& object) {
        for (const auto* row : imageRows<E>) {
          if (!f(object.*std::get<SharedText E::*>(row->field), object.*row->imageNo)) return;
        }
      },
      element);
}

/// Gives an item one name for all of its states.
void setNames(ItemObj& item, const SharedText& name);

/// Removes the images that mark an item with a submenu.
void clearSubmenuImages(ItemObj& item);

/// The text of the element's node after an edit of its name.
SharedText NodeText(const Element& element);

}  // namespace nimbrel
