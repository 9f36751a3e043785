#include "text/value_reader.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace nimbrel {
namespace {

std::vector<std::string> valuesOf(std::string_view text) {
  ValueReader reader(text);
  std::vector<std::string> values;
  for (std::string_view value; reader.next(value);) values.emplace_back(value);
  return values;
}

TEST(ValueReader, SplitsAtCommasAndAllKindsOfLineEnds) {
  using Values = std::vector<std::string>;
  for (const auto& [text, values] : std::vector<std::pair<const char*, Values>>{
           {"", {}},
           {"a,,b", {"a", "", "b"}},
           {"a\r\nb\rc\nd", {"a", "b", "c", "d"}},
           {"a\n\rb", {"a", "", "b"}},
           {"a,\r\nb\r\n", {"a", "", "b"}},
           {"  a b  ,c", {"a b", "c"}},
           {"\t a\t,b", {"a\t", "b"}},
           {" \t\r\nb", {"", "b"}},
           {"\xA0 a \xA0", {"\xA0 a \xA0"}},
           {"\" a, \",b", {" a, ", "b"}},
           {"  \"a\"dropped\"x, b", {"a", "b"}},
           {"a\"b\",c", {"a\"b\"", "c"}},
           {"\"a, \r\nb", {"a, ", "b"}},
       }) {
    EXPECT_EQ(valuesOf(text), values) << text;
  }
}

TEST(ValueReader, KnowsTheLineOfTheLastValueAndTheEnd) {
  ValueReader reader("a,b\r\n\r\"c\"\nd \r\n \t\n");
  std::vector<std::size_t> lines;
  std::string_view value;
  while (!reader.atEnd() && reader.next(value)) lines.push_back(reader.line());
  EXPECT_EQ(lines, (std::vector<std::size_t>{1, 1, 2, 3, 4}));
  EXPECT_EQ(value, "d");
}

TEST(ValueReader, SkipsAValueThatIsEqualToAnEarlierOneButNotOneThatOnlyBeginsLikeIt) {
  for (const auto* text : {"n,n,rest of it", "1234567,1234567,rest of it", "12345678,12345678,rest of it",
                           ",,rest of it", "\"a, b\" ,\"a, b\" ,rest of it"}) {
    ValueReader reader(text);
    std::string_view value;
    reader.next(value);
    EXPECT_TRUE(reader.skip(reader.lastSource()) && reader.next(value)) << text;
    EXPECT_EQ(value, "rest of it");
  }
  for (const auto* text : {"n,no,rest of it", "123456789,123456789x,rest of it", "n,n", "n,n\r\nrest of it",
                           "n\r\nn\r\nrest of it", "\"a\r\n\"a\r\nrest of it", ""}) {
    ValueReader reader(text);
    std::string_view value;
    reader.next(value);
    EXPECT_FALSE(reader.skip(reader.lastSource())) << text;
  }
}

}  // namespace
}  // namespace nimbrel
