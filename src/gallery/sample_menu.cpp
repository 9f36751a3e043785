#include "gallery/sample_menu.h"

#include <utility>

#include "gallery/style_picking.h"

namespace nimbrel {
namespace {

template <class E>
void enter(Document& document, const std::string& key, E element, Node* parent) {
  SetDefaultValues(element);
  const std::string_view name = key == "M0" ? "Main Menu" : "Submenu";
  if constexpr (std::is_same_v<E, MenuObj>) {
    element.menuname = name;
    document.tvTreeView.addRoot(key, name);
  } else {
    element.SubmenuName = name;
    document.tvTreeView.add(*parent, Relationship::Child, key, name);
  }
  document.ElementColl.add(key, std::move(element));
}

void enterItem(Document& document, std::string key, std::string_view name, std::string_view parent) {
  ItemObj item;
  SetDefaultValues(item);
  item.ItemName1 = item.ItemName2 = item.ItemName3 = name;
  item.HasSubmenu = name == "Item2" ? 1.0F : 0.0F;
  document.tvTreeView.add(*document.tvTreeView.find(parent), Relationship::Child, key, name);
  document.ElementColl.add(std::move(key), std::move(item));
}

}  // namespace

Document BuildSampleMenu() {
  Document sample;
  enter(sample, "M0", MenuObj{}, nullptr);
  enterItem(sample, "I1", "Item1", "M0");
  enterItem(sample, "I2", "Item2", "M0");
  enterItem(sample, "I3", "Item3", "M0");
  enter(sample, "S4", SubmenuObj{}, sample.tvTreeView.find("I2"));
  enterItem(sample, "I5", "Item4", "S4");
  enterItem(sample, "I6", "Item5", "S4");
  enterItem(sample, "I7", "Item6", "S4");
  return sample;
}

void ApplyStyleToSample(Document& sample, const MenuStyle& style) {
  ApplyStyle(sample, *sample.tvTreeView.root(), StyleScope::Menu, style);
}

}  // namespace nimbrel
