#include "model/structure_editing.h"

#include <gmock/gmock.h>
#include <limits>
#include <string>

#include "model/structure.h"

namespace nimbrel {
namespace {

/// The tree in one line: "M0(I1 I2(S4(I5)) I3)".
std::string shape(const Node* node) {
  std::string text;
  for (; node != nullptr; node = node->Next()) {
    if (!text.empty()) text += ' ';
    text += node->Key;
    if (node->Child() != nullptr) text += '(' + shape(node->Child()) + ')';
  }
  return text;
}

std::string shape(const Document& document) { return shape(document.tvTreeView.root()); }

class StructureEditing : public testing::Test {
 protected:
  StructureEditing() {
    BuildDefaultDocument(document);
    AddSubmenu(document, "I2");
    AddItem(document, "S4");
  }

  Node& node(std::string_view key) { return *document.tvTreeView.find(key); }
  ItemObj& item(std::string_view key) { return *document.get<ItemObj>(node(key)); }

  Document document;  // M0(I1 I2(S4(I5)) I3)
  Clipboard clipboard;
};

TEST_F(StructureEditing, PastesUnderNewKeysAsOftenAsAsked) {
  CopySubtree(document, node("I2"), clipboard);
  EXPECT_EQ(PasteSubtree(document, node("I1"), clipboard)->Key, "I6");
  EXPECT_EQ(shape(document), "M0(I1 I6(S7(I8)) I2(S4(I5)) I3)");
  PasteSubtree(document, node("S4"), clipboard);
  PasteSubtree(document, node("M0"), clipboard);
  EXPECT_EQ(shape(document), "M0(I1 I6(S7(I8)) I2(S4(I5 I9(S10(I11)))) I3 I12(S13(I14)))");
  EXPECT_EQ(document.ElementColl.size(), document.tvTreeView.size());
  EXPECT_EQ(node("I8").Text, node("I5").Text);

  Document other;
  BuildDefaultDocument(other);
  PasteSubtree(other, *other.tvTreeView.find("M0"), clipboard);
  EXPECT_EQ(shape(other), "M0(I1 I2 I3 I4(S5(I6)))");
}

TEST_F(StructureEditing, PastesAsTheElementsWereWhenCopied) {
  item("I1").FontFamily2 = "cursive";
  item("I1").FontFamily3 = "fantasy";
  item("I1").HasSubmenuImage1 = "arrow.gif";
  CopySubtree(document, node("I1"), clipboard);
  item("I1").URL = "later.html";
  RemoveSubtree(document, "I1");
  const auto& pasted = item(PasteSubtree(document, node("I3"), clipboard)->Key);
  EXPECT_EQ(pasted.FontFamily2, "fantasy");  // kept: a clone takes the font of Mouse Click
  EXPECT_EQ(pasted.HasSubmenuImage1, "arrow.gif");
  EXPECT_NE(pasted.URL, "later.html");
}

TEST_F(StructureEditing, RefusesWhatHasNoPlace) {
  EXPECT_EQ(refusalOfCopy("M0")->title, "Cannot copy");
  EXPECT_EQ(refusalOfCut("M0")->title, "Cannot cut");
  EXPECT_EQ(refusalOfCopy("S4"), nullptr);
  EXPECT_EQ(refusalOfPaste(clipboard, node("M0")), nullptr) << "an empty clipboard does nothing";
  EXPECT_EQ(PasteSubtree(document, node("M0"), clipboard), nullptr);

  CopySubtree(document, node("S4"), clipboard);
  EXPECT_THAT(refusalOfPaste(clipboard, node("M0"))->text,
              testing::StartsWith("You cannot paste a submenu on the"));
  EXPECT_THAT(refusalOfPaste(clipboard, node("S4"))->text, testing::EndsWith("linked to items."));
  EXPECT_THAT(refusalOfPaste(clipboard, node("I2"))->text, testing::EndsWith("already has a submenu"));
  ASSERT_EQ(refusalOfPaste(clipboard, node("I1")), nullptr);
  PasteSubtree(document, node("I1"), clipboard);
  EXPECT_EQ(shape(document), "M0(I1(S6(I7)) I2(S4(I5)) I3)");
}

TEST_F(StructureEditing, MovesAmongTextsThatDiffer) {
  EXPECT_FALSE(MoveItemUp(document, node("I1")));
  EXPECT_TRUE(MoveItemUp(document, node("I2")));
  EXPECT_EQ(shape(document), "M0(I2(S4(I5)) I1 I3)");
  EXPECT_EQ(document.NextKeyNumber, 9) << "three nodes moved";
  EXPECT_TRUE(MoveItemDown(document, node("I2")));
  EXPECT_TRUE(MoveItemDown(document, node("I2")));
  EXPECT_EQ(shape(document), "M0(I1 I3 I2(S4(I5)))");
  EXPECT_FALSE(MoveItemDown(document, node("I2")));
  node("I2").Text = node("I1").Text;  // kept: texts are compared, not nodes
  EXPECT_FALSE(MoveItemUp(document, node("I2")));
}

TEST_F(StructureEditing, StopsWhereTheCounterIsUsedUp) {
  document.NextKeyNumber = std::numeric_limits<std::int16_t>::max() - 2;
  EXPECT_THROW(MoveItemUp(document, node("I2")), std::overflow_error);
  EXPECT_EQ(shape(document), "M0(I1 I2(S4(I5)) I3)");
  CopySubtree(document, node("I2"), clipboard);
  EXPECT_THROW(PasteSubtree(document, node("I1"), clipboard), std::overflow_error);
  EXPECT_EQ(shape(document), "M0(I1 I32765(S32766) I2(S4(I5)) I3)");
  EXPECT_EQ(document.ElementColl.size(), document.tvTreeView.size());
}

TEST_F(StructureEditing, MakesNoSecondRootBesideAnItemThatAFileMadeOne) {
  Document foreign;
  foreign.tvTreeView.addRoot("I1", "Root");
  foreign.ElementColl.add("I1", ItemObj{});
  CopySubtree(document, node("I1"), clipboard);
  EXPECT_EQ(PasteSubtree(foreign, *foreign.tvTreeView.root(), clipboard), nullptr);
  EXPECT_EQ(AddItem(foreign, "I1"), nullptr);
  EXPECT_FALSE(canMoveUp(*foreign.tvTreeView.root()));
  EXPECT_EQ(shape(foreign), "I1");
}

TEST_F(StructureEditing, TheNeighbourFollowsWhatGoes) {
  EXPECT_EQ(neighbourOf(node("I1")), &node("I2"));
  EXPECT_EQ(neighbourOf(node("I3")), &node("I2"));
  EXPECT_EQ(neighbourOf(node("S4")), &node("I2"));
}

}  // namespace
}  // namespace nimbrel
