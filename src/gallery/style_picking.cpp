#include "gallery/style_picking.h"

#include <utility>

namespace nimbrel {
namespace {

constexpr Message nothingPicked{"Cannot apply style",
                                "Cannot apply style.\r\nYou need to pick a style first."};
constexpr Message containerOnItem{"Cannot apply style", "You cannot apply a submenu style to an item"};
constexpr Message itemOnSubmenu{"Cannot apply style", "You cannot apply an item style to a submenu"};

/// Returns the element of a node in a style. Items without a submenu lose the images that mark one.
Element styled(const Node& node, Element element, const MenuStyle& style) {
  if (auto* item = std::get_if<ItemObj>(&element)) {
    CopyStyleValuesFromObject(*item, style.item);
    if (node.Child() == nullptr) clearSubmenuImages(*item);
  } else if (auto* submenu = std::get_if<SubmenuObj>(&element)) {
    CopyStyleValuesFromObject(*submenu, style.submenu);
  } else {
    CopyStyleValuesFromObject(std::get<MenuObj>(element), style.submenu);
  }
  return element;
}

}  // namespace

void PickStyle(const Element& element, StylePicking& picking) {
  if (const auto* menu = std::get_if<MenuObj>(&element)) {
    CopyStyleValuesFromMenuObject(picking.PickedSubmenu, *menu);
  } else if (const auto* submenu = std::get_if<SubmenuObj>(&element)) {
    CopyStyleValuesFromObject(picking.PickedSubmenu, *submenu);
  } else {
    CopyStyleValuesFromObject(picking.PickedItem, std::get<ItemObj>(element));
  }
  picking.PickedStyleKind = kindOf(element) == Kind::Item ? itemStyle : containerStyle;
}

const Message* refusalOfPickedStyle(const StylePicking& picking, std::string_view key) {
  if (picking.PickedStyleKind == containerStyle)
    return kindOf(key) == Kind::Item ? &containerOnItem : nullptr;
  if (picking.PickedStyleKind == itemStyle) return kindOf(key) == Kind::Submenu ? &itemOnSubmenu : nullptr;
  return &nothingPicked;
}

void ApplyPickedStyle(const StylePicking& picking, Element& element) {
  if (auto* item = std::get_if<ItemObj>(&element)) {
    CopyStyleValuesFromObject(*item, picking.PickedItem);
  } else if (auto* submenu = std::get_if<SubmenuObj>(&element)) {
    CopyStyleValuesFromObject(*submenu, picking.PickedSubmenu);
  } else {
    CopyStyleValuesFromObject(std::get<MenuObj>(element), picking.PickedSubmenu);
  }
}

void eachStyled(const Document& document, const Node& node, StyleScope scope, const MenuStyle& style,
                const std::function<void(const Node&, Element)>& f) {
  const auto visit = [&](const Node& one) {
    if (const auto* element = document.element(one)) f(one, styled(one, *element, style));
  };
  switch (scope) {
    case StyleScope::Menu: {
      const Node* root = document.tvTreeView.root();
      for (const Node* each = root; each != nullptr; each = following(each, root)) visit(*each);
      break;
    }
    case StyleScope::Submenu:
      visit(node);
      for (const Node* child = node.Child(); child != nullptr; child = child->Next()) visit(*child);
      break;
    case StyleScope::Item: {
      const auto* element = document.element(node);
      if (element == nullptr || !std::holds_alternative<ItemObj>(*element)) break;
      auto item = std::get<ItemObj>(*element);
      CopyStyleValuesFromObject(item, style.item);
      f(node, std::move(item));
      break;
    }
  }
}

void ApplyStyle(Document& document, Node& node, StyleScope scope, const MenuStyle& style) {
  eachStyled(document, node, scope, style,
             [&](const Node& one, Element element) { *document.element(one) = std::move(element); });
}

}  // namespace nimbrel
