#include "model/structure.h"

#include <gmock/gmock.h>
#include <limits>
#include <random>
#include <string>
#include <vector>

namespace nimbrel {
namespace {

using testing::ElementsAre;

std::vector<std::string> keysOf(const Document& document) {
  std::vector<std::string> keys;
  for (const Node* node = document.tvTreeView.root(); node != nullptr; node = following(node)) {
    keys.push_back(node->Key);
  }
  return keys;
}

ItemObj& item(Document& document, std::string_view key) {
  return *document.get<ItemObj>(*document.tvTreeView.find(key));
}

SubmenuObj& submenu(Document& document, std::string_view key) {
  return *document.get<SubmenuObj>(*document.tvTreeView.find(key));
}

Document defaultDocument() {
  Document document;
  BuildDefaultDocument(document);
  return document;
}

void expectWellFormed(const Document& document) {
  const auto keys = keysOf(document);
  ASSERT_EQ(keys.size(), document.tvTreeView.size());
  ASSERT_EQ(keys.size(), document.ElementColl.size());
  for (const auto& key : keys) {
    const Node& node = *document.tvTreeView.find(key);
    const Element* element = document.element(node);
    ASSERT_NE(element, nullptr) << key;
    EXPECT_EQ(kindOf(*element), kindOf(key)) << key;
    EXPECT_LT(std::stoi(key.substr(1)), document.NextKeyNumber) << key;
    EXPECT_EQ(node.Parent() == nullptr, kindOf(key) == Kind::Menu) << key;
    if (kindOf(key) == Kind::Menu) continue;
    const bool isItem = kindOf(key) == Kind::Item;
    EXPECT_EQ(kindOf(node.Parent()->Key) == Kind::Item, !isItem) << key;
    EXPECT_TRUE(!isItem || node.Children() <= 1) << key;
  }
  EXPECT_EQ(document.tvTreeView.root()->Next(), nullptr);
}

TEST(BuildDefaultDocument, MakesAMenuOfThreeItems) {
  Document document = defaultDocument();
  EXPECT_THAT(keysOf(document), ElementsAre("M0", "I1", "I2", "I3"));
  EXPECT_EQ(document.NextKeyNumber, 4);
  for (const std::string number : {"1", "2", "3"}) {
    const ItemObj& made = item(document, "I" + number);
    EXPECT_EQ(made.ItemName1.view(), "Item" + number);
    EXPECT_EQ(made.ItemName3.view(), "Item" + number);
    EXPECT_TRUE(made.URL.view().ends_with("/?source=app"));
    EXPECT_EQ(made.TargetFrame, "new");
    EXPECT_EQ(document.tvTreeView.find("I" + number)->Text.view(), "Item" + number);
  }
  EXPECT_EQ(document.tvTreeView.root()->Text, "Main Menu");
}

TEST(BuildDefaultDocument, EmptiesTheDocumentAndKeepsItsSettings) {
  Document document = defaultDocument();
  document.settings.CompiledName = "menu.js";
  AddSubmenu(document, "I2");
  BuildDefaultDocument(document);
  EXPECT_EQ(document.settings.CompiledName, "menu.js");
  document.settings = {};
  EXPECT_EQ(document, defaultDocument());
}

TEST(AddItem, GoesBehindAnItemAndToTheEndOfAMenu) {
  Document document = defaultDocument();
  AddItem(document, "I1");
  AddItem(document, "M0");
  const std::string below = AddSubmenu(document, "I1")->Key;
  AddItem(document, below);
  AddItem(document, below);
  EXPECT_THAT(keysOf(document), ElementsAre("M0", "I1", "S6", "I7", "I8", "I4", "I2", "I3", "I5"));
  EXPECT_EQ(AddItem(document, "I99"), nullptr);
  EXPECT_EQ(document.NextKeyNumber, 9);
}

TEST(AddItem, IsDressedAsTheItemAheadOfIt) {
  Document document = defaultDocument();
  item(document, "I2").BGColor1 = "#112233";
  item(document, "I2").HasSubmenuImage2 = "C:\\arrow.gif";
  item(document, "I2").URL = "elsewhere.html";
  ItemObj& added = item(document, AddItem(document, "I2")->Key);
  EXPECT_EQ(added.BGColor1, "#112233");
  EXPECT_EQ(added.HasSubmenuImage2, "n");
  EXPECT_EQ(added.URL, "n");
}

TEST(AddItem, AsFirstIsDressedAsTheOwnerOfItsSubmenu) {
  Document document = defaultDocument();
  AddSubmenu(document, "I2");
  item(document, "I2").FontFamily2 = "Georgia";
  item(document, "I2").HasSubmenuImage1 = "C:\\arrow.gif";
  const ItemObj& added = item(document, AddItem(document, "S4")->Key);
  EXPECT_EQ(added.FontFamily2, "Georgia");
  EXPECT_EQ(added.HasSubmenuImage1, "n");
}

TEST(AddItem, AsFirstOfAnEmptyMainMenuKeepsTheDefaults) {
  Document document;
  AddMainMenu(document);
  document.get<MenuObj>(*document.tvTreeView.root())->BGColor = "#112233";
  ItemObj expected;
  SetDefaultValues(expected);
  expected.ItemName1 = expected.ItemName2 = expected.ItemName3 = "Item1";
  EXPECT_EQ(item(document, AddItem(document, "M0")->Key), expected);
}

TEST(AddSubmenu, HangsFromAnItemThatHasNone) {
  Document document = defaultDocument();
  const Node* added = AddSubmenu(document, "I2");
  ASSERT_NE(added, nullptr);
  EXPECT_EQ(added->Key, "S4");
  EXPECT_EQ(added->Parent()->Key, "I2");
  EXPECT_EQ(added->Text, "Submenu4");
  EXPECT_EQ(submenu(document, "S4").SubmenuName, "Submenu4");
  EXPECT_EQ(item(document, "I2").HasSubmenu, 0) << "the tree alone tells";
}

TEST(AddSubmenu, IsRefusedElsewhereAndChangesNothing) {
  Document document = defaultDocument();
  AddSubmenu(document, "I2");
  const Document before = document;
  for (const auto* key : {"M0", "S4", "I2", "I99", ""}) EXPECT_EQ(AddSubmenu(document, key), nullptr) << key;
  EXPECT_EQ(document, before);
  EXPECT_EQ(refusalOfSubmenu(document, "I1"), nullptr);
  for (const auto* key : {"M0", "S4"}) {
    const Message* refusal = refusalOfSubmenu(document, key);
    EXPECT_EQ(refusal->title, "Cannot create submenu");
    EXPECT_EQ(refusal->text, "A submenu can descend only from an item, not from a menu or another submenu");
  }
  EXPECT_EQ(refusalOfSubmenu(document, "I2")->text,
            "A submenu already exists for the selected item. You\r"
            "may select the existing submenu and add items to it");
}

TEST(AddSubmenu, OfTheMainMenuTakesItsLookButNeitherCursorNorOpening) {
  Document document = defaultDocument();
  auto& menu = *document.get<MenuObj>(*document.tvTreeView.root());
  menu.TitleCursor = 7;
  menu.TitleBGColor = "#112233";
  menu.UniformItemWidths = 0;
  menu.UnfoldDirection = 9;
  const SubmenuObj& added = submenu(document, AddSubmenu(document, "I1")->Key);
  EXPECT_EQ(added.TitleBGColor, "#112233");
  EXPECT_EQ(added.UniformItemWidths, 0);
  EXPECT_EQ(added.TitleCursor, 0);
  EXPECT_EQ(added.UnfoldDirection, 0);
  EXPECT_EQ(added.SubmenuHow, 2);
  EXPECT_EQ(added.SubmenuWhere, -4);
}

TEST(AddSubmenu, DeeperDownTakesLookCursorAndOpeningOfItsContainer) {
  Document document = defaultDocument();
  AddSubmenu(document, "I1");
  AddItem(document, "S4");
  submenu(document, "S4").TitleCursor = 7;
  submenu(document, "S4").SubmenuWhere = 2.5;
  submenu(document, "S4").SubmenuType = 1;
  const SubmenuObj& added = submenu(document, AddSubmenu(document, "I5")->Key);
  EXPECT_EQ(added.TitleCursor, 7);
  EXPECT_EQ(added.SubmenuWhere, 2.5);
  EXPECT_EQ(added.SubmenuType, 0);
}

TEST(KeyNumbers, AreNeverHandedBack) {
  Document document = defaultDocument();
  RemoveSubtree(document, "I3");
  EXPECT_EQ(AddItem(document, "I2")->Key, "I4");
}

TEST(KeyNumbers, EndBeforeAnythingIsAdded) {
  Document document = defaultDocument();
  document.NextKeyNumber = std::numeric_limits<std::int16_t>::max() - 1;
  EXPECT_EQ(AddItem(document, "M0")->Key, "I32766");
  const Document before = document;
  EXPECT_THROW(AddItem(document, "M0"), std::overflow_error);
  EXPECT_THROW(AddSubmenu(document, "I1"), std::overflow_error);
  EXPECT_THROW(AddMainMenu(document), std::overflow_error);
  EXPECT_EQ(document, before);
}

TEST(RemoveSubtree, TakesTreeAndElements) {
  Document document = defaultDocument();
  AddSubmenu(document, "I2");
  AddItem(document, "S4");
  RemoveSubtree(document, "I99");
  // The key may be the one in either collection that is removed.
  RemoveSubtree(document, std::next(document.ElementColl.begin(), 2)->first);
  EXPECT_THAT(keysOf(document), ElementsAre("M0", "I1", "I3"));
  EXPECT_EQ(document.ElementColl.size(), 3U);
  RemoveSubtree(document, document.tvTreeView.root()->Key);
  EXPECT_TRUE(document.tvTreeView.empty());
  EXPECT_TRUE(document.ElementColl.empty());
}

TEST(Structure, StaysWellFormedUnderAnySequenceOfOperations) {
  for (unsigned seed = 0; seed < 20; ++seed) {
    std::mt19937 engine(seed);
    Document document = defaultDocument();
    for (int step = 0; step < 200; ++step) {
      const auto keys = keysOf(document);
      const auto& key = keys[engine() % keys.size()];
      switch (engine() % 4) {
        case 0: AddSubmenu(document, key); break;
        case 1:
          if (key != "M0") RemoveSubtree(document, key);
          break;
        default: AddItem(document, key);
      }
    }
    SCOPED_TRACE(seed);
    expectWellFormed(document);
  }
}

}  // namespace
}  // namespace nimbrel
