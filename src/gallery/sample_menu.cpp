#include "gallery/sample_menu.h"

#include "gallery/style_picking.h"
#include "model/structure.h"

namespace nimbrel {

Document BuildSampleMenu() {
  Document sample;
  AddMainMenu(sample);
  for (int i = 0; i < 3; ++i) AddItem(sample, "M0");
  sample.get<ItemObj>(*sample.tvTreeView.find("I2"))->HasSubmenu = 1;
  Node& node = *AddSubmenu(sample, "I2");
  auto& submenu = *sample.get<SubmenuObj>(node);
  SetDefaultValues(submenu);  // without the look of the main menu
  node.Text = submenu.SubmenuName = "Submenu";
  for (const auto* name : {"Item4", "Item5", "Item6"}) {
    Node& item = *AddItem(sample, node.Key);
    setNames(*sample.get<ItemObj>(item), name);
    item.Text = name;
  }
  return sample;
}

void ApplyStyleToSample(Document& sample, const MenuStyle& style) {
  ApplyStyle(sample, *sample.tvTreeView.root(), StyleScope::Menu, style);
}

}  // namespace nimbrel
