#include "compiler/element_calls.h"

#include <gmock/gmock.h>

#include "compiler/fixtures.h"

namespace nimbrel {
namespace {

using testing::HasSubstr;

template <class E>
std::string callOf(const E& element, int level = 0) {
  std::string script;
  JavascriptInitString(element, level, script);
  return script;
}

std::string mimicOf(const SubmenuObj& element) {
  std::string script;
  JavascriptInitStringMimicMenu(element, script);
  return script;
}

/// A container whose name and image are shown, with calculated numbers of its own.
template <class Container>
Container titled() {
  auto c = withDistinctValues<Container>();
  c.DisplayNameAsTitle = 1;
  c.ContainerStyleID = "70";
  c.TitleStyleID = "71";
  c.TitleImageNo = 73;
  return c;
}

TEST(ElementCalls, EveryArgumentOfAMenuHasItsPlace) {
  auto menu = titled<MenuObj>();
  menu.HorizontalDistanceFromCorner = -10.25F;
  EXPECT_EQ(callOf(menu),
            R"(var s0=nbrCreateMenu(11,0,0,12,13,0,3,4,5,-10.25,7,8,2,70,71,"menuname","TitleTooltip",72,15,)"
            R"(35,36,1,"JavascriptOnOpen","JavascriptOnClose");)");
  menu.MenuType = 0;
  EXPECT_TRUE(callOf(menu).ends_with(R"(,35,1,37,"JavascriptOnOpen","JavascriptOnClose");)"));
}

TEST(ElementCalls, EveryArgumentOfASubmenuHasItsPlaceInBothForms) {
  auto submenu = titled<SubmenuObj>();
  submenu.SubmenuType = 1;
  const std::string tail =
      R"(,1,70,71,"SubmenuName","TitleTooltip",72,11,31,32,1,"JavascriptOnOpen","JavascriptOnClose");)";
  EXPECT_EQ(callOf(submenu, 12), "var s12=it.addSubmenu(1,3,4,5,7,8,6" + tail.substr(2));
  EXPECT_EQ(mimicOf(submenu), "var s0=nbrCreateMenu(1,3,4,5,7,8,0,1,0,0,0,0" + tail);
  submenu.SubmenuType = 0;
  EXPECT_TRUE(callOf(submenu).ends_with(R"(,31,1,33,"JavascriptOnOpen","JavascriptOnClose");)"));
}

TEST(ElementCalls, EveryArgumentOfAnItemHasItsPlaceInBothForms) {
  auto item = withDistinctValues<ItemObj>();
  item.DisplayNameAsTitle1 = item.DisplayNameAsTitle2 = item.DisplayNameAsTitle3 = 1;
  item.ItemStyleID1 = "1", item.ItemStyleID2 = "2", item.ItemStyleID3 = "3";
  item.ItemImage1No = 80, item.ItemImage2No = 81, item.ItemImage3No = 0;
  item.HasSubmenuImage1No = 90, item.HasSubmenuImage2No = 91, item.HasSubmenuImage3No = 92;
  const std::string head = R"(1,2,3,"ItemName1","ItemName2","ItemName3","ItemTooltip",)";
  const std::string tail =
      R"("StatusBarText","JavascriptCommand1","JavascriptCommand2","JavascriptCommand3",)"
      R"("URL","TargetFrame");)";
  constexpr std::array slots{&ItemObj::ItemImage1,       &ItemObj::ItemImage2,
                             &ItemObj::ItemImage3,       &ItemObj::HasSubmenuImage1,
                             &ItemObj::HasSubmenuImage2, &ItemObj::HasSubmenuImage3};
  for (const auto slot : slots) item.*slot = notSet;
  EXPECT_EQ(callOf(item), "it=s0.addItem(" + head + tail) << "backgrounds are a matter of the style call";
  for (const auto slot : slots) {  // one will do, also where its file is missing
    auto withImage = item;
    withImage.*slot = "i.gif";
    EXPECT_EQ(callOf(withImage, 2), "it=s2.addItemWithImages(" + head + "79,80,n,10,11,12,89,90,91," + tail);
  }
}

TEST(ElementCalls, WhatATitleShows) {
  auto submenu = titled<SubmenuObj>();
  submenu.TitleImageNo = 0;
  // kept: the main menu form of a submenu asks for the property, the others for the number.
  EXPECT_THAT(mimicOf(submenu), HasSubstr(R"("TitleTooltip",-1,11,)"));
  EXPECT_THAT(callOf(submenu), HasSubstr(R"("TitleTooltip",n,1,)"));
  auto menu = titled<MenuObj>();
  menu.DisplayNameAsTitle = 0;
  menu.TitleStyleID = "";
  EXPECT_THAT(callOf(menu), HasSubstr(R"(,70,n,n,"TitleTooltip",72,15,)")) << "the image alone";
  menu.DisplayNameAsTitle = 2;
  EXPECT_THAT(callOf(menu), HasSubstr(R"(,70,n,n,"TitleTooltip",n,15,)")) << "no title";
}

TEST(ElementCalls, TextsByTheirRules) {
  struct Case {
    std::string value, name, text, command, plain;  // as it stands and as each kind of argument
  };
  for (const auto& [value, name, text, command, plain] : std::vector<Case>{
           {"", R"("")", R"("")", R"("")", R"("")"},
           {"n", R"("n")", R"("n")", "n", "n"},
           {R"(C:\a "b")", R"("C:\\a \"b\"")", R"("C:\\a \"b\"")", R"("C:\a 'b'")", R"("C:\a "b"")"},
           {"  a\\ ", R"("&nbsp&nbsp a\\ &nbsp")", R"("  a\\ ")", R"("  a\ ")", R"("  a\ ")"},
           {" ", R"("&nbsp &nbsp")", R"(" ")", R"(" ")", R"(" ")"},  // kept: one more than there are
       }) {
    ItemObj item;
    SetDefaultValues(item);
    item.ItemName1 = item.ItemName2 = item.ItemName3 = item.ItemTooltip = value;
    item.JavascriptCommand2 = item.URL = value;
    EXPECT_EQ(callOf(item),
              "it=s0.addItem(,,," + name + ",n,n," + text + R"(,"",n,)" + command + ",n," + plain + ",n);");
  }
}

TEST(ElementCalls, NamesOfTheOtherStates) {
  struct Case {
    std::uint8_t display1, display2, display3;
    const char *name2, *name3, *expected;  // the three arguments, where the first name is "a"
  };
  for (const auto& [display1, display2, display3, name2, name3, expected] : std::vector<Case>{
           {1, 1, 1, "b", "b", R"((,,,"a","b","b",)"},  // never compared with each other
           {0, 1, 1, "a", "a", R"((,,,"","a","a",)"},   // there is no Normal text to keep
           {2, 1, 1, "a", "a", R"((,,,"",n,n,)"},       // kept: only 0 counts as none here
           {1, 0, 2, "b", "b", R"((,,,"a","","",)"},
       }) {
    auto item = withDistinctValues<ItemObj>();
    item.DisplayNameAsTitle1 = display1, item.DisplayNameAsTitle2 = display2;
    item.DisplayNameAsTitle3 = display3;
    item.ItemName1 = "a", item.ItemName2 = name2, item.ItemName3 = name3;
    EXPECT_THAT(callOf(item), HasSubstr(expected));
  }
}

}  // namespace
}  // namespace nimbrel
