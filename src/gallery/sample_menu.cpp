#include "gallery/sample_menu.h"

#include <utility>

#include "gallery/style_picking.h"

namespace nimbrel {
namespace {

void enterMenu(Document& document) {
  MenuObj menu;
  SetDefaultValues(menu);
  menu.menuname = "Main Menu";
  document.tvTreeView.addRoot("M0", menu.menuname);
  document.ElementColl.add("M0", std::move(menu));
}

void enterSubmenu(Document& document) {
  SubmenuObj submenu;
  SetDefaultValues(submenu);
  submenu.SubmenuName = "Submenu";
  document.tvTreeView.add(*document.tvTreeView.find("I2"), Relationship::Child, "S4", submenu.SubmenuName);
  document.ElementColl.add("S4", std::move(submenu));
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
  enterMenu(sample);
  enterItem(sample, "I1", "Item1", "M0");
  enterItem(sample, "I2", "Item2", "M0");
  enterItem(sample, "I3", "Item3", "M0");
  enterSubmenu(sample);
  enterItem(sample, "I5", "Item4", "S4");
  enterItem(sample, "I6", "Item5", "S4");
  enterItem(sample, "I7", "Item6", "S4");
  sample.NextKeyNumber = static_cast<std::int16_t>(sample.tvTreeView.size());
  return sample;
}

void ApplyStyleToSample(Document& sample, const MenuStyle& style) {
  ApplyStyle(sample, *sample.tvTreeView.root(), StyleScope::Menu, style);
}

}  // namespace nimbrel
