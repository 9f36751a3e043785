#include "model/element.h"

#include <gtest/gtest.h>
#include <string>

#include "model/fixtures.h"
#include "support/bytes_of.h"

namespace nimbrel {
namespace {

/// The names of the properties in which two elements are equal, or those in which they differ.
template <class E>
std::string properties(bool equal, const E& a, const E& b) {
  std::string list;
  eachProperty<E>([&](const Property<E>& property, auto field) {
    if ((a.*field == b.*field) == equal) list += " " + std::string(property.name);
  });
  return list + "\n";
}

/// The names of the properties of a target that a copy of a style does not change.
template <class Target, class Source>
std::string keptBy(void (*copyStyle)(Target&, const Source&)) {
  const auto before = withDistinctValues<Target>();
  auto target = before;
  copyStyle(target, withDistinctValues<Source>(100));
  return properties(true, target, before);
}

// The golden file lists the properties that are not part of a style.
TEST(Element, GivesItsStyleToOthers) {
  const auto text = "main menu from main menu:" + keptBy<MenuObj, MenuObj>(CopyStyleValuesFromObject) +
                    "main menu from submenu:" + keptBy<MenuObj, SubmenuObj>(CopyStyleValuesFromObject) +
                    "submenu from submenu:" + keptBy<SubmenuObj, SubmenuObj>(CopyStyleValuesFromObject) +
                    "submenu from main menu:" + keptBy<SubmenuObj, MenuObj>(CopyStyleValuesFromMenuObject) +
                    "item from item:" + keptBy<ItemObj, ItemObj>(CopyStyleValuesFromObject);
  EXPECT_EQ(text, bytesOf(NIMBREL_TEST_DATA "/golden/element-copies.txt"));
}

TEST(Element, HasQuirksInItsDefaultsAndClones) {
  auto submenu = withDistinctValues<SubmenuObj>();
  EXPECT_EQ(clone(submenu), submenu);
  SetDefaultValues(submenu);
  EXPECT_EQ(properties(true, submenu, withDistinctValues<SubmenuObj>()), " SubmenuType\n");
  EXPECT_EQ(submenu.SubmenuName, "0");

  const auto menu = withDistinctValues<MenuObj>();
  const auto copy = clone(menu);
  EXPECT_EQ(properties(false, copy, menu), " Collapsable MenuHow UnfoldDirection UniformItemWidths\n");
  EXPECT_EQ(copy.Collapsable + copy.MenuHow + copy.UnfoldDirection, 3 * menu.DisplayNameAsTitle);

  const auto item = withDistinctValues<ItemObj>();
  EXPECT_EQ(properties(false, clone(item), item), " FontFamily2\n");
  EXPECT_EQ(clone(item).FontFamily2, item.FontFamily3);
}

TEST(Element, HasImageSlotsInTheOrderOfTheCompiledCalls) {
  const Element element = withDistinctValues<ItemObj>();
  EXPECT_EQ(getImage(element, 4), "HasSubmenuImage2");
  for (const int slot : {-1, 9}) EXPECT_EQ(getImage(element, slot), "nomoreimages");
}

TEST(NodeText, OfAnItemShowsItsNamesIfTheyDiffer) {
  ItemObj item;
  setNames(item, "Home");
  EXPECT_EQ(NodeText(item), "Home");
  item.ItemName3 = "Go";
  EXPECT_EQ(NodeText(item), "Home - Home - Go");
}

}  // namespace
}  // namespace nimbrel
