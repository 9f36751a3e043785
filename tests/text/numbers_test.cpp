#include "text/numbers.h"

#include <cmath>
#include <cstring>
#include <gtest/gtest.h>
#include <limits>
#include <random>

namespace nimbrel {
namespace {

TEST(GeneralForm, HasSevenDigitsAndAnExponentOnlyAtTheEnds) {
  struct Case {
    float value;
    const char* text;
  };
  for (const auto& [value, text] : {
           Case{0, "0"},
           Case{-0.0F, "0"},
           Case{30, "30"},
           Case{-4, "-4"},
           Case{1.5, "1.5"},
           Case{-0.25, "-0.25"},
           Case{0.1F, "0.1"},
           Case{1.0F / 3, "0.3333333"},
           Case{-200.0F / 3, "-66.66666"},
           Case{1e6F, "1000000"},
           Case{1234567.75F, "1234568"},
           Case{12345678, "12345680"},
           Case{9.9e14F, "990000000000000"},
           Case{1e15F, "1E+15"},
           Case{-1.25e20F, "-1.25E+20"},
           Case{1e-4F, "0.0001"},
           Case{9.9999e-5F, "9.9999E-05"},
           Case{1e-7F, "1E-07"},
           Case{std::numeric_limits<float>::max(), "3.402823E+38"},
           Case{std::numeric_limits<float>::denorm_min(), "1.401298E-45"},
       }) {
    EXPECT_EQ(generalForm(value), text);
  }
}

// A document that is written, read and written again must not change any more.
TEST(GeneralForm, IsStableAfterOneWayThroughText) {
  std::mt19937 engine(1);
  for (int i = 0; i < 50'000; ++i) {
    const auto bits = static_cast<std::uint32_t>(engine());
    float value = 0;
    std::memcpy(&value, &bits, sizeof value);
    if (!std::isfinite(value)) continue;
    const auto text = generalForm(value);
    const auto back = parseSingle(text);
    ASSERT_TRUE(back) << text;
    ASSERT_EQ(generalForm(*back), text);
  }
}

TEST(GeneralForm, OfBytesAndTheIntegersOfTheHeader) {
  std::string text;
  for (const int byte : {0, 9, 255}) appendGeneral(text, static_cast<std::uint8_t>(byte));
  EXPECT_EQ(text, "09255");
  EXPECT_EQ(printedForm(0), " 0 ");
  EXPECT_EQ(printedForm(-5), "-5 ");
  EXPECT_EQ(printedForm(std::numeric_limits<std::int32_t>::min()), "-2147483648 ");
}

TEST(ParseSingle, TakesNumberTextsAsAWholeAndNothingElse) {
  EXPECT_EQ(parseSingle(" 1.5 "), 1.5F);
  EXPECT_EQ(parseSingle("+.5"), 0.5F);
  EXPECT_EQ(parseSingle("-4."), -4.0F);
  EXPECT_EQ(parseSingle("1E+03"), 1000.0F);
  EXPECT_EQ(parseSingle("1e-7"), 1e-7F);
  for (const auto* text : {"",   " ",  "n",   "4mm", "#FFFFFF", "1,5",  "+-1", "-+1", "--1",   ".",   "-",
                           "1e", "e5", "inf", "nan", "-inf",    "0x10", "1 2", "\t1", "1\xA0", "1e39"}) {
    EXPECT_FALSE(parseSingle(text)) << text;
  }
}

TEST(ParseByte, RoundsTiesToEvenAndStaysInRange) {
  EXPECT_EQ(parseByte("7"), 7);
  EXPECT_EQ(parseByte(" +255 "), 255);
  EXPECT_EQ(parseByte("0.5"), 0);
  EXPECT_EQ(parseByte("1.5"), 2);
  EXPECT_EQ(parseByte("2.5"), 2);
  EXPECT_EQ(parseByte("255.4"), 255);
  EXPECT_EQ(parseByte("-0.5"), 0);
  EXPECT_EQ(parseByte("2.55e2"), 255);
  for (const auto* text : {"256", "255.5", "-1", "-0.6", "1e9", "", "a", "0x1"})
    EXPECT_FALSE(parseByte(text)) << text;
}

TEST(ParseInteger, RoundsTiesToEvenAndStaysInRange) {
  EXPECT_EQ(parseInteger(" -5 "), -5);
  EXPECT_EQ(parseInteger("-2.5"), -2);
  EXPECT_EQ(parseInteger("2147483647"), 2147483647);
  EXPECT_EQ(parseInteger("-2147483648"), std::numeric_limits<std::int32_t>::min());
  EXPECT_FALSE(parseInteger("2147483648"));
  EXPECT_FALSE(parseInteger("12px"));
}

TEST(ParseBoolean, TakesTheWordsInAnyCaseAndNumbers) {
  for (const auto* text : {"True", "TRUE", "true", "1", "-1", " 0.5 "})
    EXPECT_EQ(parseBoolean(text), true) << text;
  for (const auto* text : {"False", "fALSE", "0", "-0"}) EXPECT_EQ(parseBoolean(text), false) << text;
  for (const auto* text : {"", "yes", "Truer", "n"}) EXPECT_FALSE(parseBoolean(text)) << text;
}

}  // namespace
}  // namespace nimbrel
