#include "model/element.h"

#include <algorithm>
#include <array>
#include <type_traits>
#include <utility>

namespace nimbrel {
namespace {

template <class E>
void setDefaults(E& element) {
  for (const Property<E>& property : E::properties()) setDefault(element, property);
}

template <class E>
E copyOfProperties(const E& element) {
  E copy;
  eachProperty<E>([&](const Property<E>&, auto field) { copy.*field = element.*field; });
  return copy;
}

/// One property that a copy of a style includes.
template <class Target, class Source>
struct CopiedField {
  typename Property<Target>::Field to;
  typename Property<Source>::Field from;
};

/// The properties that are part of `style`, each with the source's property of the same name. Does not compile if the
/// source lacks one.
template <Style style, class Target, class Source>
constexpr auto copiedFields = [] {
  constexpr auto isCopied = [](const Property<Target>& property) { return (property.style & style) != 0; };
  std::array<CopiedField<Target, Source>, std::ranges::count_if(Target::properties(), isCopied)> fields{};
  std::size_t next = 0;
  for (const auto& property : Target::properties()) {
    if (isCopied(property)) fields[next++] = {property.field, findProperty<Source>(property.name)->field};
  }
  return fields;
}();

template <Style style, class Target, class Source>
void copyStyle(Target& target, const Source& source) {
  for (const auto& copied : copiedFields<style, Target, Source>) {
    std::visit(
        [&](auto field) {
          using Value = std::remove_reference_t<decltype(target.*field)>;
          target.*field = source.*std::get<Value Source::*>(copied.from);
        },
        copied.to);
  }
}

template <class E>
const Property<E>* imageSlot(int slot) {
  constexpr auto& rows = imageRows<E>;
  return slot >= 0 && std::cmp_less(slot, rows.size()) ? rows[static_cast<std::size_t>(slot)] : nullptr;
}

}  // namespace

std::optional<Element> newElement(Kind kind) {
  switch (kind) {
    case Kind::Menu: return MenuObj{};
    case Kind::Submenu: return SubmenuObj{};
    case Kind::Item: return ItemObj{};
    case Kind::None: break;
  }
  return std::nullopt;
}

void SetDefaultValues(MenuObj& element) { setDefaults(element); }

// Quirk: the zero meant for `SubmenuType` goes to `SubmenuName`, which becomes "0". The type does not change.
void SetDefaultValues(SubmenuObj& element) { setDefaults(element); }

void SetDefaultValues(ItemObj& element) { setDefaults(element); }

MenuObj clone(const MenuObj& element) {
  MenuObj copy = copyOfProperties(element);
  // Quirk: three properties get the value of `DisplayNameAsTitle`, and `UniformItemWidths` is not copied.
  copy.Collapsable = copy.MenuHow = copy.UnfoldDirection = element.DisplayNameAsTitle;
  copy.UniformItemWidths = 0;
  return copy;
}

SubmenuObj clone(const SubmenuObj& element) { return copyOfProperties(element); }

ItemObj clone(const ItemObj& element) {
  ItemObj copy = copyOfProperties(element);
  // Quirk: the copy has the Mouse Click font for Mouse Over too.
  copy.FontFamily2 = element.FontFamily3;
  return copy;
}

Element clone(const Element& element) {
  return std::visit([](const auto& object) -> Element { return clone(object); }, element);
}

void CopyStyleValuesFromObject(MenuObj& target, const MenuObj& CopyItem) {
  copyStyle<StyleOfClass>(target, CopyItem);
}

void CopyStyleValuesFromObject(MenuObj& target, const SubmenuObj& CopyItem) {
  copyStyle<StyleOfClass>(target, CopyItem);
}

void CopyStyleValuesFromObject(SubmenuObj& target, const SubmenuObj& CopyItem) {
  copyStyle<StyleOfClass>(target, CopyItem);
}

void CopyStyleValuesFromObject(ItemObj& target, const ItemObj& CopyItem) {
  copyStyle<StyleOfClass>(target, CopyItem);
}

void CopyStyleValuesFromMenuObject(SubmenuObj& target, const MenuObj& CopyItem) {
  copyStyle<StyleOfMenu>(target, CopyItem);
}

std::string_view getImage(const Element& element, int slot) {
  return std::visit(
      [slot]<class E>(const E& object) -> std::string_view {
        const auto* property = imageSlot<E>(slot);
        if (property == nullptr) return noMoreImages;
        return object.*std::get<SharedText E::*>(property->field);
      },
      element);
}

void setNames(ItemObj& item, const SharedText& name) {
  item.ItemName1 = item.ItemName2 = item.ItemName3 = name;
}

const SharedText& nameOf(const Element& element) {
  if (const auto* item = std::get_if<ItemObj>(&element)) return item->ItemName1;
  if (const auto* submenu = std::get_if<SubmenuObj>(&element)) return submenu->SubmenuName;
  return std::get<MenuObj>(element).menuname;
}

void setName(Element& element, const SharedText& name) {
  if (auto* item = std::get_if<ItemObj>(&element)) {
    setNames(*item, name);
  } else if (auto* submenu = std::get_if<SubmenuObj>(&element)) {
    submenu->SubmenuName = name;
  } else {
    std::get<MenuObj>(element).menuname = name;
  }
}

void clearSubmenuImages(ItemObj& item) {
  item.HasSubmenuImage1 = item.HasSubmenuImage2 = item.HasSubmenuImage3 = notSet;
}

SharedText NodeText(const Element& element) {
  struct Label {
    SharedText operator()(const MenuObj& menu) const { return menu.menuname; }
    SharedText operator()(const SubmenuObj& submenu) const { return submenu.SubmenuName; }
    SharedText operator()(const ItemObj& item) const {
      if (item.ItemName1 == item.ItemName2 && item.ItemName1 == item.ItemName3) return item.ItemName1;
      return item.ItemName1.str() + " - " + item.ItemName2.str() + " - " + item.ItemName3.str();
    }
  };
  return std::visit(Label{}, element);
}

}  // namespace nimbrel
