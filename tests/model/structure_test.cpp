#include "model/structure.h"

#include <gtest/gtest.h>
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
  std::string shape() const { return nimbrel::shape(document.tvTreeView); }

  Document document;  // M0(I1 I2 I3)
};

TEST_F(Structure, NewItemsHaveTheStyleOfTheItemBeforeOrOfTheOwnerOfTheSubmenu) {
  AddSubmenu(document, "I2");
  auto& item = get<ItemObj>("I2");
  item.BGColor1 = "#112233";
  item.HasSubmenuImage2 = "C:\\arrow.gif";
  item.URL = "elsewhere.html";
  for (const auto* selected : {"I2", "S4"}) {
    const ItemObj& added = get<ItemObj>(AddItem(document, selected)->Key);
    EXPECT_EQ(added.BGColor1, "#112233") << selected;
    EXPECT_EQ(added.HasSubmenuImage2, "n") << selected;
    EXPECT_EQ(added.URL, "n") << selected;
  }
  EXPECT_EQ(shape(), "M0(I1 I2(S4(I6)) I5 I3)");
}

TEST_F(Structure, NewSubmenusHaveTheStyleOfTheirContainerButNoCursorOrOpeningOfAMainMenu) {
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

TEST_F(Structure, NothingIsAddedWithoutAFreeKeyNumber) {
  document.NextKeyNumber = Document::largestKeyNumber - 1;
  EXPECT_EQ(AddItem(document, "M0")->Key, "I32766");
  const Document before = document;
  EXPECT_THROW(AddItem(document, "M0"), std::overflow_error);
  EXPECT_THROW(AddSubmenu(document, "I1"), std::overflow_error);
  EXPECT_THROW(AddMainMenu(document), std::overflow_error);
  EXPECT_EQ(document, before);
}

TEST_F(Structure, ANewDocumentKeepsTheSettings) {
  document.settings.CompiledName = "menu.js";
  BuildDefaultDocument(document);
  EXPECT_EQ(document.settings.CompiledName, "menu.js");
}

TEST_F(Structure, RemovingAcceptsAKeyOfARemovedElement) {
  AddSubmenu(document, "I2");
  AddItem(document, "S4");
  RemoveSubtree(document, std::next(document.ElementColl.begin(), 2)->first);
  EXPECT_EQ(shape(), "M0(I1 I3)");
  EXPECT_EQ(document.ElementColl.size(), 3U);
}

}  // namespace
}  // namespace nimbrel
