#include "properties/cell_text.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>

namespace nimbrel {
namespace {

TEST(CellText, ANumberStandsAtItsTextsStart) {
  EXPECT_EQ(Val("12px"), 12);
  EXPECT_EQ(Val("  -1.5e1x"), -15);
  EXPECT_EQ(Val("+.5"), 0.5);
  EXPECT_EQ(Val("1e999"), std::numeric_limits<double>::max());
  for (const auto* text : {"abc", "", " ", "-", "inf", "nan", "--1", "1e-999", "-0"}) {
    EXPECT_EQ(Val(text), 0) << text;
    EXPECT_FALSE(std::signbit(Val(text))) << text;
  }
}

TEST(CellText, ColoursGoByTheirDigits) {
  const PropertyRow row{"", {KindColour, {}, "n", "(Transparent)"}};
  const CellRules rules{&row, SharedText("n"), "(Transparent)", nullptr};
  const auto parsed = [&](std::string_view text) {
    return std::get<SharedText>(ParseCellText(rules, text, {})).str();
  };
  EXPECT_EQ(parsed(" #ff0 "), "#000FF0");
  EXPECT_EQ(parsed("#"), "#000000");
  for (const auto* text : {"", "  ", "#1234567", "abc", "#GG0000", "#12 456", "(Transparent)"}) {
    EXPECT_EQ(parsed(text), "n") << text;
  }
}

TEST(CellText, SwatchTakesAnythingForAColour) {
  EXPECT_EQ(swatchOf("n"), Swatch());
  EXPECT_EQ(swatchOf("#0A10fF"), (Rgb{0x0A, 0x10, 0xFF}));
  EXPECT_EQ(swatchOf(""), Rgb());
  EXPECT_EQ(swatchOf("red"), (Rgb{0xED, 0, 0}));
  EXPECT_EQ(swatchOf("#1G-1z"), (Rgb{1, 0, 0}));
  EXPECT_EQ(colourText(0xEEC0AB), "#ABC0EE");
}

}  // namespace
}  // namespace nimbrel
