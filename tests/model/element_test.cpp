#include "model/element.h"

#include <gmock/gmock.h>
#include <sstream>
#include <string>
#include <vector>

#include "model/fixtures.h"

namespace nimbrel {
namespace {

using testing::UnorderedElementsAre;
using testing::UnorderedElementsAreArray;
using Names = std::vector<std::string>;

/// The properties in which two elements agree, or those in which they do not.
template <class E>
Names properties(bool agree, const E& a, const E& b) {
  Names names;
  eachProperty<E>([&](const Property<E>& property, auto field) {
    if ((a.*field == b.*field) == agree) names.emplace_back(property.name);
  });
  return names;
}

TEST(Element, DefaultsOfASubmenuEndWithTheNameZeroAndLeaveItsType) {
  auto submenu = withDistinctValues<SubmenuObj>();
  const auto before = submenu;
  SetDefaultValues(submenu);
  EXPECT_EQ(submenu.SubmenuName, "0");  // kept: meant for the type
  EXPECT_THAT(properties(true, submenu, before), UnorderedElementsAre("SubmenuType"));
}

TEST(Element, IsClonedWithAFewValuesOfItsOwn) {
  auto menu = withDistinctValues<MenuObj>();
  menu.DisplayNameAsTitle = 2;
  menu.TitleStyleID = "7";
  menu.BGImageNo = 3;
  const MenuObj copy = clone(menu);
  EXPECT_THAT(properties(false, copy, menu),
              UnorderedElementsAre("Collapsable", "MenuHow", "UnfoldDirection", "UniformItemWidths"));
  EXPECT_THAT((std::vector{copy.Collapsable, copy.MenuHow, copy.UnfoldDirection, copy.UniformItemWidths}),
              testing::ElementsAre(2, 2, 2, 0));
  EXPECT_TRUE(copy.TitleStyleID.empty() && copy.BGImageNo == 0) << "what a compile calculates";

  const Element submenu = withDistinctValues<SubmenuObj>();
  EXPECT_EQ(clone(submenu), submenu);

  const auto item = withDistinctValues<ItemObj>();
  EXPECT_THAT(properties(false, clone(item), item), UnorderedElementsAre("FontFamily2"));
  EXPECT_EQ(clone(item).FontFamily2, item.FontFamily3);
}

/// What stays with the target when the look of a source is copied.
template <class Target, class Source>
Names left(void (*copyLook)(Target&, const Source&)) {
  const auto before = withDistinctValues<Target>();
  auto target = before;
  copyLook(target, withDistinctValues<Source>(100));
  return properties(true, target, before);
}

Names words(const char* text) {
  std::istringstream stream(text);
  return {std::istream_iterator<std::string>(stream), {}};
}

TEST(Style, TravelsWithoutContent) {
  const Names menu = words(
      "menuname MenuType Movable Drifty CornerForPositioning StickySubmenus ZIndex Collapsable MenuHow "
      "UnfoldDirection TitleImage TitleTooltip UniformItemWidths JavascriptOnOpen JavascriptOnClose "
      "HorizontalDistanceFromCorner VerticalDistanceFromCorner");
  const Names submenu =
      words("SubmenuName SubmenuType TitleImage TitleTooltip JavascriptOnOpen JavascriptOnClose");
  Names opening = words("SubmenuWhen SubmenuWhere SubmenuHow OpenDirection UnfoldDirection SubmenuAlignment");
  const Names item = words(
      "ItemName1 ItemName2 ItemName3 ItemImage1 ItemImage2 ItemImage3 ItemTooltip StatusBarText "
      "JavascriptCommand1 JavascriptCommand2 JavascriptCommand3 URL TargetFrame HasSubmenu");
  EXPECT_THAT((left<MenuObj, MenuObj>(CopyStyleValuesFromObject)), UnorderedElementsAreArray(menu));
  EXPECT_THAT((left<MenuObj, SubmenuObj>(CopyStyleValuesFromObject)), UnorderedElementsAreArray(menu));
  EXPECT_THAT((left<SubmenuObj, SubmenuObj>(CopyStyleValuesFromObject)), UnorderedElementsAreArray(submenu));
  EXPECT_THAT((left<ItemObj, ItemObj>(CopyStyleValuesFromObject)), UnorderedElementsAreArray(item));
  opening.insert(opening.end(), submenu.begin(), submenu.end());
  EXPECT_THAT((left<SubmenuObj, MenuObj>(CopyStyleValuesFromMenuObject)), UnorderedElementsAreArray(opening));

  MenuObj target;
  const auto source = withDistinctValues<SubmenuObj>();
  CopyStyleValuesFromObject(target, source);
  EXPECT_EQ(target.UniformItemHeights, source.UniformItemHeights) << "by name, not by place";
}

TEST(Element, HasImageSlotsInTheOrderOfTheCompiledCalls) {
  Element element = withDistinctValues<ItemObj>();
  for (int slot = -1; slot < 10; ++slot) setImageNo(element, slot, static_cast<float>(slot));
  EXPECT_EQ(std::get<ItemObj>(element).HasSubmenuImage2No, 4);
  EXPECT_EQ(getImage(element, 4), "HasSubmenuImage2");
  EXPECT_EQ(getImage(element, 8), "BGImage3");
  for (const int slot : {-1, 9}) EXPECT_EQ(getImage(element, slot), "nomoreimages");
}

TEST(NodeText, OfAnItemShowsItsNamesOnceTheyDiffer) {
  ItemObj item;
  item.ItemName1 = item.ItemName2 = item.ItemName3 = "Home";
  EXPECT_EQ(NodeText(item), "Home");
  item.ItemName2 = "";
  EXPECT_EQ(NodeText(item), "Home -  - Home");
  item.ItemName2 = "Home";
  item.ItemName3 = "Go";
  EXPECT_EQ(NodeText(item), "Home - Home - Go");
}

}  // namespace
}  // namespace nimbrel
