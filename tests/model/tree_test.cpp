#include "model/tree.h"

#include <gmock/gmock.h>
#include <string>

namespace nimbrel {
namespace {

/// The tree as "M0(I1 I2(S3))".
std::string shape(const Node* node) {
  std::string text;
  for (; node != nullptr; node = node->Next()) {
    text += (node->Previous() == nullptr ? "" : " ") + node->Key;
    if (node->Child() != nullptr) text += "(" + shape(node->Child()) + ")";
  }
  return text;
}

Tree sample() {
  Tree tree;
  Node& root = tree.addRoot("M0", "Main Menu");
  Node& first = tree.add(root, Relationship::Child, "I1", "One");
  tree.add(root, Relationship::Child, "I2", "Two");
  Node& submenu = tree.add(first, Relationship::Child, "S3", "Three");
  tree.add(submenu, Relationship::Child, "I4", "Four");
  return tree;
}

TEST(Tree, AddsBehindAheadAndBelow) {
  Tree tree = sample();
  tree.add(*tree.find("I1"), Relationship::Next, "I5", "");
  tree.add(*tree.find("I1"), Relationship::Previous, "I6", "");
  tree.add(*tree.find("I2"), Relationship::Next, "I7", "");
  tree.add(*tree.root(), Relationship::Child, "I8", "");
  EXPECT_EQ(shape(tree.root()), "M0(I6 I1(S3(I4)) I5 I2 I7 I8)");
  EXPECT_EQ(tree.root()->Children(), 6U);
  EXPECT_EQ(tree.find("I5")->FirstSibling()->Key, "I6");
  EXPECT_EQ(tree.find("I5")->LastSibling()->Key, "I8");
  EXPECT_EQ(tree.at(4)->Key, "S3") << "positions are in the order of adding";
}

TEST(Tree, TakesFurtherRootsBehindTheFirst) {
  Tree tree = sample();
  tree.addRoot("M5", "");
  tree.add(*tree.root(), Relationship::Previous, "X6", "");
  EXPECT_EQ(shape(tree.root()), "X6 M0(I1(S3(I4)) I2) M5");
  EXPECT_EQ(tree.find("M0")->FirstSibling()->Key, "X6");
  EXPECT_EQ(tree.find("M0")->LastSibling()->Key, "M5");
  tree.remove("X6");
  tree.remove("M5");
  EXPECT_EQ(shape(tree.root()), "M0(I1(S3(I4)) I2)");
}

TEST(Tree, RefusesAKeyThatIsTaken) {
  Tree tree = sample();
  EXPECT_THROW(tree.addRoot("I4", ""), std::invalid_argument);
  EXPECT_THROW(tree.add(*tree.root(), Relationship::Child, "I4", ""), std::invalid_argument);
  EXPECT_EQ(shape(tree.root()), "M0(I1(S3(I4)) I2)");
}

TEST(Tree, RemovesANodeWithWhatHangsFromIt) {
  Tree tree = sample();
  tree.remove(tree.find("I1")->Key);
  tree.remove("I99");
  EXPECT_EQ(shape(tree.root()), "M0(I2)");
  EXPECT_EQ(tree.size(), 2U);
  EXPECT_EQ(tree.find("S3"), nullptr);
  tree.remove("M0");
  EXPECT_TRUE(tree.empty());
  EXPECT_EQ(tree.root(), nullptr);
}

TEST(Tree, CopiesStandAlone) {
  Tree tree = sample();
  Tree copy = tree;
  tree.remove("I1");
  EXPECT_EQ(shape(copy.root()), "M0(I1(S3(I4)) I2)");
  EXPECT_EQ(copy.find("I4")->Parent(), copy.find("S3"));
  const Tree moved = std::move(copy);
  EXPECT_EQ(moved, sample());
  EXPECT_TRUE(copy.empty());  // NOLINT(bugprone-use-after-move): a moved tree is promised to be empty
  EXPECT_EQ(copy.root(), nullptr);
}

TEST(Tree, EqualityTellsPlacesAndTextsApart) {
  Tree tree = sample();
  tree.find("I4")->Text = "4";
  EXPECT_FALSE(tree == sample());
  Tree flat = sample();
  flat.remove("I4");
  flat.add(*flat.find("I1"), Relationship::Child, "I4", "Four");  // the same walk, another parent
  EXPECT_FALSE(flat == sample());
  Tree shorter = sample();
  shorter.remove("I2");
  EXPECT_FALSE(shorter == sample());
}

TEST(Tree, IsWalkedDepthFirst) {
  const Tree tree = sample();
  std::string keys;
  for (const Node* node = tree.root(); node != nullptr; node = following(node)) keys += node->Key + " ";
  EXPECT_EQ(keys, "M0 I1 S3 I4 I2 ");
  const Node* top = tree.find("I1");
  EXPECT_EQ(following(tree.find("I4"), top), nullptr);
  EXPECT_EQ(followingPastChildren(top, top), nullptr);
  EXPECT_EQ(followingPastChildren(top)->Key, "I2");
}

// A file may nest as deep as it is long.
TEST(Tree, NestsDeeplyWithoutRecursion) {
  constexpr int levels = 50'000;
  Tree tree;
  Node* node = &tree.addRoot("0", "");
  for (int i = 1; i < levels; ++i) node = &tree.add(*node, Relationship::Child, std::to_string(i), "");
  Tree copy = tree;
  EXPECT_EQ(copy, tree);
  tree.remove("1");
  EXPECT_EQ(tree.size(), 1U);
  EXPECT_EQ(copy.size(), static_cast<std::size_t>(levels));
}

TEST(Node, HasThePictureOfItsKind) {
  const Tree tree = sample();
  EXPECT_EQ(tree.find("M0")->Image(), "menu");
  EXPECT_EQ(tree.find("S3")->Image(), "menu");
  EXPECT_EQ(tree.find("I4")->Image(), "item");
  EXPECT_EQ(kindOf(""), Kind::None);
  EXPECT_EQ(kindOf("i1"), Kind::None);
}

}  // namespace
}  // namespace nimbrel
