#include "gallery/style_picking.h"

#include <gtest/gtest.h>

#include "gallery/sample_menu.h"

namespace nimbrel {
namespace {

class Picking : public testing::Test {
 protected:
  Element& element(const char* key) { return *document.ElementColl.find(key); }
  ItemObj& item(const char* key) { return std::get<ItemObj>(element(key)); }
  Node& node(const char* key) { return *document.tvTreeView.find(key); }

  Document document = BuildSampleMenu();  // M0(I1 I2(S4(I5 I6 I7)) I3)
};

TEST_F(Picking, AppliesToElementsOfTheSameKind) {
  StylePicking picking;
  PickStyle(element("M0"), picking);
  ApplyPickedStyle(picking, element("S4"));
  EXPECT_EQ(std::get<SubmenuObj>(element("S4")).SubmenuHow, 0) << "Quirk: zero, not the default of 2";
  EXPECT_NE(refusalOfPickedStyle(picking, "I1"), nullptr);
  item("I1").HasSubmenuImage1 = "arrow.gif";
  PickStyle(element("I1"), picking);
  EXPECT_NE(refusalOfPickedStyle(picking, "S4"), nullptr);
  EXPECT_EQ(refusalOfPickedStyle(picking, "M0"), nullptr);  // Quirk: only submenus are refused
  ApplyPickedStyle(picking, element("I3"));
  EXPECT_EQ(item("I3").HasSubmenuImage1, "arrow.gif");
}

TEST_F(Picking, AppliesAStyleToTheElementsOfTheScope) {
  MenuStyle style = styleOfMenu(&std::get<MenuObj>(element("M0")), &item("I1"));
  style.item.HasSubmenuImage1 = "arrow.gif";
  style.submenu.BGColor = "#333333";
  ApplyStyle(document, node("I3"), StyleScope::Item, style);
  EXPECT_EQ(item("I3").HasSubmenuImage1, "arrow.gif");  // Quirk: only this scope keeps the image

  item("I6").HasSubmenuImage1 = item("I1").HasSubmenuImage1 = "old.gif";
  ApplyStyle(document, node("S4"), StyleScope::Submenu, style);
  EXPECT_EQ(std::get<SubmenuObj>(element("S4")).BGColor, "#333333");
  EXPECT_EQ(item("I6").HasSubmenuImage1, "n");
  EXPECT_EQ(item("I1").HasSubmenuImage1, "old.gif");

  ApplyStyleToSample(document, style);
  EXPECT_EQ(std::get<MenuObj>(element("M0")).BGColor, "#333333");
  EXPECT_EQ(item("I2").HasSubmenuImage1, "arrow.gif");
  EXPECT_EQ(item("I3").HasSubmenuImage1, "n");
}

}  // namespace
}  // namespace nimbrel
