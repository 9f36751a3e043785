#include "model/structure.h"

#include <gtest/gtest.h>
#include <limits>
#include <string>

#include "model/fixtures.h"

namespace nimbrel {
namespace {

class Structure : public testing::Test {
 protected:
  Structure() { BuildDefaultDocument(document); }

  template <class E>
  E& get(std::string_view key) {
    return *document.get<E>(*document.tvTreeView.find(key));
  }
  ItemObj& item(std::string_view key) { return get<ItemObj>(key); }
  std::string shape() const { return nimbrel::shape(document.tvTreeView); }

  Document document;  // M0(I1 I2 I3)
};

TEST_F(Structure, OfANewDocumentIsAMenuOfThreeItems) {
  EXPECT_EQ(shape(), "M0(I1 I2 I3)");
  EXPECT_EQ(document.NextKeyNumber, 4);
  EXPECT_EQ(item("I2").ItemName3, "Item2");
  EXPECT_TRUE(item("I2").URL.view().ends_with("/?source=app"));
  EXPECT_EQ(item("I2").TargetFrame, "new");

  const auto elements = document;
  document.settings.CompiledName = "menu.js";
  AddSubmenu(document, "I2");
  BuildDefaultDocument(document);
  EXPECT_EQ(document.settings.CompiledName, "menu.js") << "the settings stay";
  document.settings = {};
  EXPECT_EQ(document, elements);
}

TEST_F(Structure, ItemsGoBehindAnItemAndToTheEndOfAMenu) {
  for (const auto* key : {"I1", "M0"}) AddItem(document, key);
  AddSubmenu(document, "I1");
  for (const auto* key : {"S6", "S6"}) AddItem(document, key);
  EXPECT_EQ(shape(), "M0(I1(S6(I7 I8)) I4 I2 I3 I5)");
  EXPECT_EQ(AddItem(document, "I99"), nullptr);
  EXPECT_EQ(document.NextKeyNumber, 9);
  RemoveSubtree(document, "I8");
  EXPECT_EQ(AddItem(document, "I7")->Key, "I9") << "keys are never handed back";
}

TEST_F(Structure, ItemsAreDressedAsTheOneAheadElseAsTheOwnerOfTheSubmenu) {
  AddSubmenu(document, "I2");
  item("I2").BGColor1 = "#112233";
  item("I2").HasSubmenuImage2 = "C:\\arrow.gif";
  item("I2").URL = "elsewhere.html";
  for (const auto* selected : {"I2", "S4"}) {
    const ItemObj& added = item(AddItem(document, selected)->Key);
    EXPECT_EQ(added.BGColor1, "#112233") << selected;
    EXPECT_EQ(added.HasSubmenuImage2, "n") << selected;
    EXPECT_EQ(added.URL, "n") << selected;
  }

  Document empty;
  AddMainMenu(empty);
  empty.get<MenuObj>(*empty.tvTreeView.root())->BGColor = "#112233";
  ItemObj expected;
  SetDefaultValues(expected);
  expected.ItemName1 = expected.ItemName2 = expected.ItemName3 = "Item1";
  EXPECT_EQ(*empty.get<ItemObj>(*AddItem(empty, "M0")), expected) << "none to be dressed as";
}

TEST_F(Structure, ASubmenuHangsFromAnItemThatHasNone) {
  EXPECT_EQ(refusalOfSubmenu(document, "I2"), nullptr);
  EXPECT_EQ(AddSubmenu(document, "I2")->Text, "Submenu4");
  EXPECT_EQ(shape(), "M0(I1 I2(S4) I3)");
  EXPECT_EQ(item("I2").HasSubmenu, 0) << "the tree alone tells";

  const Document before = document;
  for (const auto* key : {"M0", "S4", "I2", "I99", ""}) EXPECT_EQ(AddSubmenu(document, key), nullptr) << key;
  EXPECT_EQ(document, before);
  EXPECT_NE(refusalOfSubmenu(document, "I2"), refusalOfSubmenu(document, "S4"));
}

TEST_F(Structure, ASubmenuTakesTheLookOfItsContainerButOfTheMainMenuNeitherCursorNorOpening) {
  auto& menu = get<MenuObj>("M0");
  menu.TitleCursor = 7;
  menu.TitleBGColor = "#112233";
  menu.UnfoldDirection = 9;
  auto& first = get<SubmenuObj>(AddSubmenu(document, "I1")->Key);
  EXPECT_EQ(first.TitleBGColor, "#112233");
  EXPECT_EQ(first.TitleCursor, 0);
  EXPECT_EQ(first.UnfoldDirection, 0);

  first.TitleCursor = 7;
  first.SubmenuWhere = 2.5;
  first.SubmenuType = 1;
  const SubmenuObj& deeper = get<SubmenuObj>(AddSubmenu(document, AddItem(document, "S4")->Key)->Key);
  EXPECT_EQ(deeper.TitleCursor, 7);
  EXPECT_EQ(deeper.SubmenuWhere, 2.5);
  EXPECT_EQ(deeper.SubmenuType, 0);
}

TEST_F(Structure, KeyNumbersEndBeforeAnythingIsAdded) {
  document.NextKeyNumber = std::numeric_limits<std::int16_t>::max() - 1;
  EXPECT_EQ(AddItem(document, "M0")->Key, "I32766");
  const Document before = document;
  EXPECT_THROW(AddItem(document, "M0"), std::overflow_error);
  EXPECT_THROW(AddSubmenu(document, "I1"), std::overflow_error);
  EXPECT_THROW(AddMainMenu(document), std::overflow_error);
  EXPECT_EQ(document, before);
}

TEST_F(Structure, RemovingTakesTreeAndElements) {
  AddSubmenu(document, "I2");
  AddItem(document, "S4");
  RemoveSubtree(document, "I99");
  // The key may be the one in either collection that is removed.
  RemoveSubtree(document, std::next(document.ElementColl.begin(), 2)->first);
  EXPECT_EQ(shape(), "M0(I1 I3)");
  EXPECT_EQ(document.ElementColl.size(), 3U);
  RemoveSubtree(document, document.tvTreeView.root()->Key);
  EXPECT_TRUE(document.tvTreeView.empty() && document.ElementColl.empty());
}

}  // namespace
}  // namespace nimbrel
