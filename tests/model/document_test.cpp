#include "model/document.h"

#include <gtest/gtest.h>

#include "support/generated_document.h"

namespace nimbrel {
namespace {

TEST(Document, IsCopiedCompletelyAndComparesAllParts) {
  Document document = generatedDocument(1, 40);
  constexpr std::array<void (*)(Document&), 6> changes{
      [](Document& d) { d.tvTreeView.root()->Text = "x"; },
      [](Document& d) { d.NextKeyNumber = 9; },
      [](Document& d) { d.settings.nbrSubmenusFrameOffset ^= 1; },
      [](Document& d) { d.get<MenuObj>(*d.tvTreeView.root())->JavascriptOnClose = "x()"; },
      [](Document& d) { d.ElementColl.add("I999", ItemObj{}); },
      [](Document& d) { d.tvTreeView.addRoot("X1", ""); },
  };
  for (std::size_t i = 0; i < changes.size(); ++i) {
    const Document copy = document;
    changes.at(i)(document);
    EXPECT_FALSE(document == copy || copy == document) << "change " << i;
    document = copy;
    EXPECT_EQ(copy, document);
  }
}

}  // namespace
}  // namespace nimbrel
