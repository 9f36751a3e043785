#include "text/shared_text.h"

#include <gtest/gtest.h>

namespace nimbrel {
namespace {

TEST(SharedText, IsTheBytesItWasMadeOf) {
  std::string bytes("a\0b", 3);
  const SharedText text(bytes);
  bytes = "changed";
  EXPECT_EQ(text.view(), std::string_view("a\0b", 3));
  EXPECT_TRUE(SharedText("").empty());
  EXPECT_EQ(SharedText().view(), "");
}

TEST(SharedText, SharesItsBytesWithCopies) {
  SharedText copy;
  {
    const SharedText text("sans-serif");
    copy = text;
    EXPECT_EQ(copy.view().data(), text.view().data());
  }
  EXPECT_EQ(copy, "sans-serif");
}

TEST(SharedText, IsAssignedToItselfAndMoved) {
  SharedText text("n");
  const SharedText& same = text;
  text = same;
  EXPECT_EQ(text, "n");
  SharedText other = std::move(text);
  EXPECT_EQ(other, "n");
  other = std::string(other.view()) + other.str();
  EXPECT_EQ(other, "nn");
}

}  // namespace
}  // namespace nimbrel
