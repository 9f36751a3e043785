#include "text/value_reader.h"

#include <gmock/gmock.h>
#include <string>
#include <vector>

namespace nimbrel {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

std::vector<std::string> valuesOf(std::string_view text) {
  ValueReader reader(text);
  std::vector<std::string> values;
  for (std::string_view value; reader.next(value);) values.emplace_back(value);
  return values;
}

TEST(ValueReader, PartsAtCommas) {
  EXPECT_THAT(valuesOf(""), IsEmpty());
  EXPECT_THAT(valuesOf("a"), ElementsAre("a"));
  EXPECT_THAT(valuesOf("a,,b"), ElementsAre("a", "", "b"));
  EXPECT_THAT(valuesOf(","), ElementsAre(""));
  EXPECT_THAT(valuesOf("a,"), ElementsAre("a"));
}

TEST(ValueReader, PartsAtEveryKindOfLineEnd) {
  EXPECT_THAT(valuesOf("a\r\nb\rc\nd"), ElementsAre("a", "b", "c", "d"));
  EXPECT_THAT(valuesOf("a\n\rb"), ElementsAre("a", "", "b"));
  EXPECT_THAT(valuesOf("a\r\n\r\nb\r\n"), ElementsAre("a", "", "b"));
  EXPECT_THAT(valuesOf("a,\r\nb"), ElementsAre("a", "", "b"));
}

TEST(ValueReader, DropsOuterBlanks) {
  EXPECT_THAT(valuesOf("  a b  ,c"), ElementsAre("a b", "c"));
  EXPECT_THAT(valuesOf("\t a\t,b"), ElementsAre("a\t", "b"));
  EXPECT_THAT(valuesOf(" \t\r\nb"), ElementsAre("", "b"));
  EXPECT_THAT(valuesOf("a\r\n  "), ElementsAre("a"));
  EXPECT_THAT(valuesOf("\xA0 a \xA0"), ElementsAre("\xA0 a \xA0"));  // is no blank
}

TEST(ValueReader, TakesQuotedValuesWholeUpToTheQuoteOrLineEnd) {
  EXPECT_THAT(valuesOf("\" a, \",b"), ElementsAre(" a, ", "b"));
  EXPECT_THAT(valuesOf("  \"a\"dropped\"x, b"), ElementsAre("a", "b"));
  EXPECT_THAT(valuesOf("\"a\" x\rb"), ElementsAre("a", "b"));
  EXPECT_THAT(valuesOf("a\"b\",c"), ElementsAre("a\"b\"", "c"));
  EXPECT_THAT(valuesOf("\"a, \r\nb"), ElementsAre("a, ", "b"));
  EXPECT_THAT(valuesOf("\"\",\""), ElementsAre("", ""));
}

TEST(ValueReader, KnowsTheLineOfTheLastValueAndTheEnd) {
  ValueReader reader("a,b\r\n\r\"c\"\nd \r\n \t\n");
  std::vector<std::size_t> lines;
  std::string_view value;
  while (!reader.atEnd() && reader.next(value)) lines.push_back(reader.line());
  EXPECT_THAT(lines, ElementsAre(1, 1, 2, 3, 4));
  EXPECT_EQ(value, "d");

  ValueReader repeating("n,\r\nn,rest of it");
  repeating.next(value);
  const auto asItStood = repeating.lastAsItStood();
  repeating.next(value);
  EXPECT_TRUE(repeating.skip(asItStood));
  EXPECT_EQ(repeating.line(), 2U);
}

/// The values that are left once the first one has been read and the next one passed over, if it could be.
std::vector<std::string> leftBehindRepeat(std::string_view text) {
  ValueReader reader(text);
  std::string_view value;
  reader.next(value);
  if (!reader.skip(reader.lastAsItStood())) return {"not the same"};
  std::vector<std::string> values;
  while (reader.next(value)) values.emplace_back(value);
  return values;
}

TEST(ValueReader, PassesOverAValueThatStandsAsAnEarlierOne) {
  EXPECT_THAT(leftBehindRepeat("n,n,rest of it"), ElementsAre("rest of it"));
  EXPECT_THAT(leftBehindRepeat("1234567,1234567,rest of it"), ElementsAre("rest of it"));
  EXPECT_THAT(leftBehindRepeat("12345678,12345678,rest of it"), ElementsAre("rest of it"));
  EXPECT_THAT(leftBehindRepeat(",,,rest of it"), ElementsAre("", "rest of it"));
  EXPECT_THAT(leftBehindRepeat("\"a, b\" ,\"a, b\" ,rest of it"), ElementsAre("rest of it"));
}

TEST(ValueReader, ReadsWhatOnlyBeginsAsAnEarlierValue) {
  for (const auto* text : {"n,no,rest of it", "123456789,123456780,rest", "n,n", "n,n\r\nrest of it",
                           "n\r\nn\r\nrest", "\"a\r\n\"a\r\nrest of it", "", "n"}) {
    EXPECT_THAT(leftBehindRepeat(text), ElementsAre("not the same")) << text;
  }
}

}  // namespace
}  // namespace nimbrel
