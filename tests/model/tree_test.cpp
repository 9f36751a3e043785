#include "model/tree.h"

#include <gtest/gtest.h>
#include <string>

#include "model/fixtures.h"

namespace nimbrel {
namespace {

Tree sample() {
  Tree tree;
  Node& root = tree.addRoot("M0", "Main Menu");
  Node& first = tree.add(root, Relationship::Child, "I1", "One");
  tree.add(root, Relationship::Child, "I2", "Two");
  Node& submenu = tree.add(first, Relationship::Child, "S3", "Three");
  tree.add(submenu, Relationship::Child, "I4", "Four");
  return tree;
}

TEST(Tree, AddsNodesAfterBeforeAndBelowOthers) {
  Tree tree = sample();
  tree.add(*tree.find("I1"), Relationship::Next, "I5", "");
  tree.add(*tree.find("I1"), Relationship::Previous, "I6", "");
  tree.add(*tree.find("I2"), Relationship::Next, "I7", "");
  tree.add(*tree.root(), Relationship::Child, "I8", "");
  tree.addRoot("M9", "");
  tree.add(*tree.root(), Relationship::Previous, "X10", "");
  EXPECT_EQ(shape(tree), "X10 M0(I6 I1(S3(I4)) I5 I2 I7 I8) M9");
  EXPECT_EQ(tree.find("M0")->Children(), 6U);
  for (const auto& [key, first, last] : {std::tuple{"I5", "I6", "I8"}, {"M0", "X10", "M9"}}) {
    EXPECT_EQ(tree.find(key)->FirstSibling()->Key, first);
    EXPECT_EQ(tree.find(key)->LastSibling()->Key, last);
  }
  EXPECT_EQ(tree.at(4)->Key, "S3") << "positions are in order of insertion";
  EXPECT_THROW(tree.addRoot("I4", ""), std::invalid_argument);
  EXPECT_THROW(tree.add(*tree.root(), Relationship::Child, "I4", ""), std::invalid_argument);
}

TEST(Tree, RemovesANodeWithItsDescendants) {
  Tree tree = sample();
  tree.addRoot("M5", "");
  for (const auto& key : {std::string("M5"), tree.find("I1")->Key, std::string("I99")}) tree.remove(key);
  EXPECT_EQ(shape(tree), "M0(I2)");
  EXPECT_EQ(tree.size(), 2U);
  EXPECT_EQ(tree.root()->Children(), 1U);
  EXPECT_EQ(tree.find("S3"), nullptr);
  tree.remove(tree.root()->Key);  // a view of the removed key
  EXPECT_TRUE(tree.empty());
  EXPECT_EQ(tree.root(), nullptr);
}

TEST(Tree, CopiesAreIndependent) {
  Tree tree = sample();
  Tree copy = tree;
  tree.remove("I1");
  EXPECT_EQ(shape(copy), "M0(I1(S3(I4)) I2)");
  EXPECT_EQ(copy.find("I4")->Parent(), copy.find("S3"));
  const Tree moved = std::move(copy);
  EXPECT_EQ(moved, sample());
  EXPECT_TRUE(copy.empty());  // NOLINT(bugprone-use-after-move): moving guarantees an empty tree
  EXPECT_EQ(copy.root(), nullptr);
}

TEST(Tree, EqualityComparesParentsToo) {
  Tree flat = sample();
  flat.remove("I4");
  EXPECT_FALSE(flat == sample());
  flat.add(*flat.find("I1"), Relationship::Child, "I4", "Four");
  EXPECT_FALSE(flat == sample());
}

// The depth of a tree from a file is limited only by its size.
TEST(Tree, NestsDeeplyWithoutRecursion) {
  constexpr int levels = 50'000;
  Tree tree;
  Node* node = &tree.addRoot("0", "");
  for (int i = 1; i < levels; ++i) node = &tree.add(*node, Relationship::Child, std::to_string(i), "");
  Tree copy = tree;
  EXPECT_EQ(copy, tree);
  tree.remove("1");
  EXPECT_EQ(tree.size(), 1U);
}

}  // namespace
}  // namespace nimbrel
