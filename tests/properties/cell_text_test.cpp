#include "properties/cell_text.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>

namespace nimbrel {
namespace {

TEST(CellText, ReadsTheNumberAtTheStartOfAText) {
  EXPECT_EQ(Val("12px"), 12);
  EXPECT_EQ(Val("  -1.5e1x"), -15);
  EXPECT_EQ(Val("+.5"), 0.5);
  EXPECT_EQ(Val("1e999"), std::numeric_limits<double>::max());
  for (const auto* text : {"abc", "", "-", "inf", "--1", "1e-999", "-0"}) {
    EXPECT_TRUE(Val(text) == 0 && !std::signbit(Val(text))) << text;
  }
}

TEST(CellText, SwatchOfAnyTextButTheBlankValueIsAColour) {
  EXPECT_EQ(swatchOf("n"), Swatch());
  EXPECT_EQ(swatchOf(""), Rgb());
  EXPECT_EQ(swatchOf("red"), (Rgb{0xED, 0, 0}));
  EXPECT_EQ(swatchOf("#1G-1z"), (Rgb{1, 0, 0}));
}

}  // namespace
}  // namespace nimbrel
