#include "model/element.h"

#include <gmock/gmock.h>
#include <set>
#include <string>
#include <vector>

namespace nimbrel {
namespace {

using testing::IsEmpty;
using testing::UnorderedElementsAre;
using testing::UnorderedElementsAreArray;
using Names = std::vector<std::string_view>;

void put(SharedText& field, int number) { field = "text " + std::to_string(number); }
void put(std::uint8_t& field, int number) { field = static_cast<std::uint8_t>(number); }
void put(float& field, int number) { field = static_cast<float>(number) + 0.5F; }

/// An element whose properties all differ, also from those of one with another `from`, and from zero.
template <class E>
E distinct(int from) {
  E element;
  eachProperty<E>([&](const Property<E>&, auto field) { put(element.*field, from++); });
  return element;
}

/// The properties in which two elements differ.
template <class E>
Names differences(const E& a, const E& b) {
  Names names;
  eachProperty<E>([&](const Property<E>& property, auto field) {
    if (!(a.*field == b.*field)) names.push_back(property.name);
  });
  return names;
}

template <class E>
Names allNames() {
  return differences(E{}, distinct<E>(1));
}

template <class E>
Names allNamesBut(const Names& others) {
  Names names = allNames<E>();
  std::erase_if(names, [&](auto name) { return std::ranges::find(others, name) != others.end(); });
  return names;
}

template <class E>
class EveryRow : public testing::Test {};
using Classes = testing::Types<MenuObj, SubmenuObj, ItemObj>;
TYPED_TEST_SUITE(EveryRow, Classes);

TYPED_TEST(EveryRow, IsOneFieldOfItsOwn) {
  const auto& rows = TypeParam::properties();
  for (const auto& row : rows) {
    TypeParam element;
    std::visit([&](auto field) { put(element.*field, 1); }, row.field);
    EXPECT_THAT(differences(element, TypeParam{}), testing::ElementsAre(row.name));
    EXPECT_FALSE(element == TypeParam{}) << row.name;
    EXPECT_EQ(findProperty<TypeParam>(row.name), &row);
  }
}

TYPED_TEST(EveryRow, IsSetToItsDefault) {
  auto once = distinct<TypeParam>(1);
  auto again = distinct<TypeParam>(101);
  SetDefaultValues(once);
  SetDefaultValues(again);
  const Names untouched =
      std::is_same_v<TypeParam, SubmenuObj> ? Names{"SubmenuType"} : Names{};  // kept: see its row
  EXPECT_THAT(differences(once, again), UnorderedElementsAreArray(untouched));
}

// The default values themselves stand in the golden menu file.
TEST(Defaults, OfASubmenuEndWithTheNameZero) {
  SubmenuObj submenu;
  SetDefaultValues(submenu);
  EXPECT_EQ(submenu.SubmenuName, "0");
}

TEST(Clone, OfAMenuHasFourPropertiesOfItsOwn) {
  auto menu = distinct<MenuObj>(1);
  menu.DisplayNameAsTitle = 2;
  menu.TitleStyleID = "7";
  menu.BGImageNo = 3;
  const MenuObj copy = clone(menu);
  EXPECT_THAT(differences(copy, menu),
              UnorderedElementsAre("Collapsable", "MenuHow", "UnfoldDirection", "UniformItemWidths"));
  EXPECT_EQ(copy.Collapsable, 2);
  EXPECT_EQ(copy.MenuHow, 2);
  EXPECT_EQ(copy.UnfoldDirection, 2);
  EXPECT_EQ(copy.UniformItemWidths, 0);
  EXPECT_TRUE(copy.TitleStyleID.empty());
  EXPECT_EQ(copy.BGImageNo, 0);
}

TEST(Clone, OfASubmenuIsTheSame) {
  auto submenu = distinct<SubmenuObj>(1);
  submenu.ContainerStyleID = "7";
  const Element copy = clone(Element(submenu));
  EXPECT_EQ(copy, Element(submenu));
  EXPECT_TRUE(std::get<SubmenuObj>(copy).ContainerStyleID.empty());
}

TEST(Clone, OfAnItemTakesTheMouseClickFontForMouseOver) {
  auto item = distinct<ItemObj>(1);
  item.ItemImage1No = 3;
  const ItemObj copy = clone(item);
  EXPECT_THAT(differences(copy, item), UnorderedElementsAre("FontFamily2"));
  EXPECT_EQ(copy.FontFamily2, item.FontFamily3);
  EXPECT_EQ(copy.ItemImage1No, 0);
}

const Names contentOfMenu{"menuname",
                          "MenuType",
                          "Movable",
                          "Drifty",
                          "CornerForPositioning",
                          "StickySubmenus",
                          "ZIndex",
                          "Collapsable",
                          "MenuHow",
                          "UnfoldDirection",
                          "TitleImage",
                          "TitleTooltip",
                          "UniformItemWidths",
                          "JavascriptOnOpen",
                          "JavascriptOnClose",
                          "HorizontalDistanceFromCorner",
                          "VerticalDistanceFromCorner"};
const Names contentOfSubmenu{"SubmenuName",  "SubmenuType",      "TitleImage",
                             "TitleTooltip", "JavascriptOnOpen", "JavascriptOnClose"};
const Names openingOfSubmenu{"SubmenuWhen",   "SubmenuWhere",    "SubmenuHow",
                             "OpenDirection", "UnfoldDirection", "SubmenuAlignment"};
const Names contentOfItem{"ItemName1",          "ItemName2",          "ItemName3",          "ItemImage1",
                          "ItemImage2",         "ItemImage3",         "ItemTooltip",        "StatusBarText",
                          "JavascriptCommand1", "JavascriptCommand2", "JavascriptCommand3", "URL",
                          "TargetFrame",        "HasSubmenu"};

template <class E>
void expectStyleIsAllBut(const Names& content) {
  const auto before = distinct<E>(1);
  auto target = before;
  const auto source = distinct<E>(101);
  CopyStyleValuesFromObject(target, source);
  EXPECT_THAT(differences(target, before), UnorderedElementsAreArray(allNamesBut<E>(content)));
  EXPECT_THAT(differences(target, source), UnorderedElementsAreArray(content));
}

TEST(Style, TravelsWithinAClassWithoutContent) {
  expectStyleIsAllBut<MenuObj>(contentOfMenu);
  expectStyleIsAllBut<SubmenuObj>(contentOfSubmenu);
  expectStyleIsAllBut<ItemObj>(contentOfItem);
}

TEST(Style, OfAMenuLeavesHowTheSubmenuOpens) {
  const auto before = distinct<SubmenuObj>(1);
  auto target = before;
  auto source = distinct<MenuObj>(101);
  CopyStyleValuesFromMenuObject(target, source);
  Names left = contentOfSubmenu;
  left.insert(left.end(), openingOfSubmenu.begin(), openingOfSubmenu.end());
  EXPECT_THAT(differences(target, before), UnorderedElementsAreArray(allNamesBut<SubmenuObj>(left)));
  EXPECT_EQ(target.UniformItemWidths, source.UniformItemWidths);
  EXPECT_EQ(target.TitleCursor, source.TitleCursor);
}

TEST(Style, OfASubmenuDressesAMenuByName) {
  const auto before = distinct<MenuObj>(1);
  auto target = before;
  const auto source = distinct<SubmenuObj>(101);
  CopyStyleValuesFromObject(target, source);
  EXPECT_THAT(differences(target, before), UnorderedElementsAreArray(allNamesBut<MenuObj>(contentOfMenu)));
  EXPECT_EQ(target.TitleBGColor, source.TitleBGColor);
  EXPECT_EQ(target.UniformItemHeights, source.UniformItemHeights);
}

TEST(Images, HaveSlotsInTheOrderOfTheCompiledCalls) {
  const auto item = distinct<ItemObj>(1);
  const std::vector<SharedText> expected{item.ItemImage1,       item.ItemImage2,       item.ItemImage3,
                                         item.HasSubmenuImage1, item.HasSubmenuImage2, item.HasSubmenuImage3,
                                         item.BGImage1,         item.BGImage2,         item.BGImage3};
  for (std::size_t slot = 0; slot < expected.size(); ++slot) {
    EXPECT_EQ(getImage(item, static_cast<int>(slot)), expected[slot].view());
  }
  EXPECT_EQ(getImage(item, 9), "nomoreimages");
  EXPECT_EQ(getImage(item, -1), "nomoreimages");
  for (const Element& container : {Element(distinct<MenuObj>(1)), Element(distinct<SubmenuObj>(1))}) {
    std::visit(
        [&]<class E>(const E& object) {
          if constexpr (!std::is_same_v<E, ItemObj>) {
            EXPECT_EQ(getImage(container, 0), object.TitleImage.view());
            EXPECT_EQ(getImage(container, 1), object.BGImage.view());
          }
        },
        container);
    EXPECT_EQ(getImage(container, 2), "nomoreimages");
  }
}

TEST(Images, TakeTheirNumbersBySlot) {
  Element element = ItemObj{};
  for (int slot = -1; slot < 12; ++slot) setImageNo(element, slot, static_cast<float>(slot + 1));
  const auto& item = std::get<ItemObj>(element);
  EXPECT_EQ(item.ItemImage1No, 1);
  EXPECT_EQ(item.ItemImage3No, 3);
  EXPECT_EQ(item.HasSubmenuImage2No, 5);
  EXPECT_EQ(item.BGImage3No, 9);
  EXPECT_THAT(differences(item, ItemObj{}), IsEmpty()) << "what a compile calculates is not compared";
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
