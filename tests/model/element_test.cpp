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

template <class E>
std::string defaults() {
  auto element = withDistinctValues<E>();
  const auto before = element;
  SetDefaultValues(element);
  return properties(true, element, before);
}

template <class E>
std::string changesOfClone() {
  const auto element = withDistinctValues<E>();
  return properties(false, clone(element), element);
}

template <class Target, class Source>
std::string keptBy(void (*copyStyle)(Target&, const Source&)) {
  const auto before = withDistinctValues<Target>();
  auto target = before;
  copyStyle(target, withDistinctValues<Source>(100));
  return properties(true, target, before);
}

// The golden file lists the exceptions of each operation.
TEST(Element, IsCopiedExceptForTheListedProperties) {
  std::string text;
  const auto add = [&text](const char* what, const std::string& list) { text += what + (":" + list); };
  add("the defaults keep of a main menu", defaults<MenuObj>());
  add("the defaults keep of a submenu", defaults<SubmenuObj>());
  add("the defaults keep of an item", defaults<ItemObj>());
  add("a cloned main menu differs in", changesOfClone<MenuObj>());
  add("a cloned submenu differs in", changesOfClone<SubmenuObj>());
  add("a cloned item differs in", changesOfClone<ItemObj>());
  add("the style of a main menu keeps of a main menu", keptBy<MenuObj, MenuObj>(CopyStyleValuesFromObject));
  add("the style of a submenu keeps of a main menu", keptBy<MenuObj, SubmenuObj>(CopyStyleValuesFromObject));
  add("the style of a submenu keeps of a submenu", keptBy<SubmenuObj, SubmenuObj>(CopyStyleValuesFromObject));
  add("the style of a main menu keeps of a submenu",
      keptBy<SubmenuObj, MenuObj>(CopyStyleValuesFromMenuObject));
  add("the style of an item keeps of an item", keptBy<ItemObj, ItemObj>(CopyStyleValuesFromObject));
  EXPECT_EQ(text, bytesOf(NIMBREL_TEST_DATA "/golden/element-copies.txt"));
}

// The golden file has the names of these properties.
TEST(Element, HasAFewQuirksInItsDefaultsAndClones) {
  SubmenuObj submenu;
  SetDefaultValues(submenu);
  EXPECT_EQ(submenu.SubmenuName, "0");
  MenuObj menu;
  menu.DisplayNameAsTitle = 2;
  menu.BGImageNo = 3;
  menu = clone(menu);
  EXPECT_EQ(std::tuple(menu.Collapsable, menu.MenuHow, menu.UnfoldDirection), std::tuple(2, 2, 2));
  EXPECT_EQ(menu.BGImageNo, 0) << "calculated by a compile";
  const auto item = withDistinctValues<ItemObj>();
  EXPECT_EQ(clone(item).FontFamily2, item.FontFamily3);
}

TEST(Element, HasImageSlotsInTheOrderOfTheCompiledCalls) {
  Element element = withDistinctValues<ItemObj>();
  for (int slot = -1; slot < 10; ++slot) setImageNo(element, slot, static_cast<float>(slot));
  EXPECT_EQ(std::get<ItemObj>(element).HasSubmenuImage2No, 4);
  EXPECT_EQ(getImage(element, 4), "HasSubmenuImage2");
  EXPECT_EQ(getImage(element, 8), "BGImage3");
  for (const int slot : {-1, 9}) EXPECT_EQ(getImage(element, slot), "nomoreimages");
}

TEST(NodeText, OfAnItemShowsItsNamesIfTheyDiffer) {
  ItemObj item;
  setNames(item, "Home");
  EXPECT_EQ(NodeText(item), "Home");
  item.ItemName2 = "";
  EXPECT_EQ(NodeText(item), "Home -  - Home");
  item.ItemName2 = "Home";
  item.ItemName3 = "Go";
  EXPECT_EQ(NodeText(item), "Home - Home - Go");
}

}  // namespace
}  // namespace nimbrel
