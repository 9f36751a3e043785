#include "model/structure_editing.h"

#include <gtest/gtest.h>
#include <string>

#include "model/fixtures.h"
#include "model/outline.h"
#include "model/structure.h"

namespace nimbrel {
namespace {

class StructureEditing : public testing::Test {
 protected:
  StructureEditing() {
    BuildDefaultDocument(document);
    AddSubmenu(document, "I2");
    AddItem(document, "S4");
  }

  Node& node(std::string_view key) { return *document.tvTreeView.find(key); }
  ItemObj& item(std::string_view key) { return *document.get<ItemObj>(node(key)); }
  std::string shape() const { return nimbrel::shape(document.tvTreeView); }

  Document document;  // M0(I1 I2(S4(I5)) I3)
  Clipboard clipboard;
};

TEST_F(StructureEditing, PastesUnderNewKeysEachTime) {
  CopySubtrees(document, {&node("I2")}, clipboard);
  for (const auto* target : {"I1", "S4", "M0"}) PasteSubtrees(document, node(target), clipboard);
  EXPECT_EQ(shape(), "M0(I1 I6(S7(I8)) I2(S4(I5 I9(S10(I11)))) I3 I12(S13(I14)))");
  EXPECT_EQ(document.ElementColl.size(), document.tvTreeView.size());
  EXPECT_EQ(node("I8").Text, node("I5").Text);
}

TEST_F(StructureEditing, PastesAsTheElementsWereWhenCopied) {
  EXPECT_EQ(PasteSubtrees(document, node("M0"), clipboard), nullptr) << "the clipboard is empty";
  item("I1").FontFamily2 = "cursive";
  item("I1").HasSubmenuImage1 = "arrow.gif";
  CopySubtrees(document, {&node("I1")}, clipboard);
  item("I1").URL = "later.html";
  RemoveSubtree(document, "I1");
  const auto& pasted = item(PasteSubtrees(document, node("I3"), clipboard)->Key);
  EXPECT_EQ(pasted.FontFamily2, pasted.FontFamily3);  // Quirk: a clone has the font of Mouse Click
  EXPECT_EQ(pasted.HasSubmenuImage1, "arrow.gif");
  EXPECT_NE(pasted.URL, "later.html");
}

TEST_F(StructureEditing, MovesUnlessTheTextIsThatOfTheFirstOrLastSibling) {
  EXPECT_FALSE(MoveItemUp(document, node("I1")));
  EXPECT_TRUE(MoveItemUp(document, node("I2")));
  EXPECT_EQ(shape(), "M0(I2(S4(I5)) I1 I3)");
  EXPECT_EQ(document.NextKeyNumber, 9);  // Quirk: three nodes moved
  EXPECT_TRUE(MoveItemDown(document, node("I2")) && MoveItemDown(document, node("I2")));
  EXPECT_EQ(shape(), "M0(I1 I3 I2(S4(I5)))");
  EXPECT_FALSE(MoveItemDown(document, node("I2")));
  node("I2").Text = node("I1").Text;  // Quirk: texts are compared, not nodes
  EXPECT_FALSE(MoveItemUp(document, node("I2")));
}

TEST_F(StructureEditing, StopsWithoutAFreeKeyNumber) {
  document.NextKeyNumber = Document::largestKeyNumber - 2;
  EXPECT_THROW(MoveItemUp(document, node("I2")), std::overflow_error);
  EXPECT_EQ(shape(), "M0(I1 I2(S4(I5)) I3)");
  CopySubtrees(document, {&node("I2")}, clipboard);
  EXPECT_THROW(PasteSubtrees(document, node("I1"), clipboard), std::overflow_error);
  EXPECT_EQ(shape(), "M0(I1 I32765(S32766) I2(S4(I5)) I3)");
  EXPECT_EQ(document.ElementColl.size(), document.tvTreeView.size());
}

TEST_F(StructureEditing, CreatesNoSecondRootNextToAnItemAsRoot) {
  Document foreign;
  foreign.tvTreeView.addRoot("I1", "Root");
  foreign.ElementColl.add("I1", ItemObj{});
  CopySubtrees(document, {&node("I1")}, clipboard);
  EXPECT_EQ(PasteSubtrees(foreign, *foreign.tvTreeView.root(), clipboard), nullptr);
  EXPECT_EQ(AddItem(foreign, "I1"), nullptr);
  EXPECT_FALSE(canMoveUp(*foreign.tvTreeView.root()));
  EXPECT_EQ(nimbrel::shape(foreign.tvTreeView), "I1");
}

TEST_F(StructureEditing, AnOutlineBecomesItemsAndBack) {
  ItemObj look;
  look.BGColor1 = "#123456";
  clipboard = outlined(
      "- Home\thome.html\r\n\r\nRooms\n    * Big\tbig.html\textra\n    Small\n  Odd\n\t\n2\n", look, {});
  EXPECT_EQ(nimbrel::shape(clipboard.tvCopyTree), "I0 I1(S2(I3 I4 I5)) I6");
  EXPECT_EQ(outlineText(clipboard), "Home\thome.html\nRooms\n\tBig\tbig.html\n\tSmall\n\tOdd\n2\n");
  EXPECT_EQ(std::get<ItemObj>(*clipboard.CopyColl.find("I3")).BGColor1, "#123456");
  EXPECT_EQ(std::get<SubmenuObj>(*clipboard.CopyColl.find("S2")).SubmenuName, "Rooms");
}

}  // namespace
}  // namespace nimbrel
