#include "text/numbers.h"

#include <gtest/gtest.h>
#include <limits>

namespace nimbrel {
namespace {

TEST(GeneralForm, HasSevenDigitsAndAnExponentOnlyForVeryLargeAndSmallNumbers) {
  for (const auto& [value, text] : std::vector<std::pair<float, const char*>>{
           {-0.0F, "0"},
           {0.1F, "0.1"},
           {-200.0F / 3, "-66.66666"},
           {1234567.75F, "1234568"},
           {9.9e14F, "990000000000000"},
           {1e15F, "1E+15"},
           {1e-4F, "0.0001"},
           {9.9999e-5F, "9.9999E-05"},
           {std::numeric_limits<float>::denorm_min(), "1.401298E-45"}}) {
    EXPECT_EQ(generalForm(value), text);
  }
  EXPECT_EQ(printedForm(0), " 0 ");
  EXPECT_EQ(printedForm(-5), "-5 ");
}

TEST(ParseSingle, AcceptsOnlyCompleteNumbers) {
  for (const auto& [text, value] : std::vector<std::pair<const char*, float>>{
           {" 1.5 ", 1.5F}, {"+.5", 0.5F}, {"-4.", -4}, {"1E+03", 1000}, {"1e-7", 1e-7F}, {"1e-99", 0}}) {
    EXPECT_EQ(parseSingle(text), value) << text;
  }
  for (const auto* text : {"", " ", "n", "4mm", "1,5", "+-1", "--1", ".", "-", "1e", "e5", "inf", "nan",
                           "-inf", "0x10", "1 2", "\t1", "1\xA0", "1e39"}) {
    EXPECT_FALSE(parseSingle(text)) << text;
  }
}

TEST(ParseByteAndInteger, RoundTiesToEvenAndStayInRange) {
  for (const auto& [text, value] : std::vector<std::pair<const char*, int>>{
           {" +255 ", 255},
           {"0.5", 0},
           {"1.5", 2},
           {"2.5", 2},
           {"-0.5", 0},
       }) {
    EXPECT_EQ(parseByte(text), value) << text;
    EXPECT_EQ(parseInteger(text), value) << text;
  }
  for (const auto* text : {"256", "255.5", "-1", "-0.6", "", "0x1"}) EXPECT_FALSE(parseByte(text)) << text;
  EXPECT_EQ(parseInteger("-2147483648"), std::numeric_limits<std::int32_t>::min());
  EXPECT_FALSE(parseInteger("2147483648"));
}

TEST(ParseBoolean, AcceptsTheWordsInAnyCaseAndNumbers) {
  for (const auto* text : {"True", "TRUE", "-1", " 0.5 "}) EXPECT_EQ(parseBoolean(text), true) << text;
  for (const auto* text : {"fALSE", "0", "-0"}) EXPECT_EQ(parseBoolean(text), false) << text;
  for (const auto* text : {"", "yes", "Truer", "n"}) EXPECT_FALSE(parseBoolean(text)) << text;
}

}  // namespace
}  // namespace nimbrel
