#include "model/document.h"

#include <gtest/gtest.h>

#include "support/generated_document.h"

namespace nimbrel {
namespace {

TEST(Document, IsCopiedWithItsTreeAndElements) {
  Document document = generatedDocument(1, 40);
  const Document copy = document;
  EXPECT_EQ(copy, document);
  document.tvTreeView.root()->Text = "changed";
  EXPECT_NE(copy.tvTreeView.root()->Text, "changed");
  document = copy;
  EXPECT_EQ(copy, document);
}

TEST(Document, DiffersInAnyPart) {
  const Document document = generatedDocument(1, 40);
  const auto changed = [&](auto change) {
    Document other = document;
    change(other);
    return !(other == document) && !(document == other);
  };
  EXPECT_TRUE(changed([](Document& d) { d.tvTreeView.root()->Text = "x"; }));
  EXPECT_TRUE(changed([](Document& d) { d.NextKeyNumber = 9; }));
  EXPECT_TRUE(changed([](Document& d) { d.settings.nbrSubmenusFrameOffset ^= 1; }));
  EXPECT_TRUE(changed([](Document& d) { d.get<MenuObj>(*d.tvTreeView.root())->JavascriptOnClose = "x()"; }));
  EXPECT_TRUE(changed([](Document& d) { d.ElementColl.add("I999", ItemObj{}); }));
  EXPECT_TRUE(changed([](Document& d) { d.tvTreeView.addRoot("X1", ""); }));
}

}  // namespace
}  // namespace nimbrel
