#include "linking/page_text.h"

#include <gtest/gtest.h>

namespace nimbrel {
namespace {

TEST(PageText, HasCrLfAsItsOnlyLineEnd) {
  const std::pair<const char*, const char*> rows[] = {
      {"", ""},           {"\n", "\r\n"},           {"\r", "\r\n"},         {"a\r\nb", "a\r\nb"},
      {"a\nb", "a\r\nb"}, {"a\rb\n", "a\r\nb\r\n"}, {"\r\r\n", "\r\n\r\n"}, {"\n\r", "\r\n\r\n"},
  };
  // At any place, since long text is looked at in blocks.
  for (std::size_t place = 0; place < 600; ++place) {
    const std::string ahead(place, 'x');
    for (const auto& [given, wanted] : rows) EXPECT_EQ(PageText(ahead + given).text(), ahead + wanted);
  }
}

TEST(PageText, FindsTheFirstAtAnyPlaceInAnyCase) {
  for (const std::string wanted : {"</body>", "<!-- x -->", "@[`{"}) {
    const auto capitals = wanted == "</body>" ? "</BoDy>" : wanted;
    for (std::size_t place = 0; place < 600; ++place) {
      // Near misses all around: without the last byte, and with bytes that differ in the letters' case bit.
      std::string text(place, wanted[0]);
      text += capitals + wanted + std::string(600 - place, '\x1c') + wanted.substr(0, wanted.size() - 1);
      EXPECT_EQ(findIgnoringCase(text, wanted), place);
      EXPECT_EQ(findIgnoringCase(text, wanted, place + 1), place + wanted.size());
      EXPECT_EQ(findIgnoringCase(text, wanted, place + wanted.size() + 1), PageText::npos);
    }
  }
  EXPECT_EQ(findIgnoringCase("`@{[", "@`[{"), PageText::npos) << "no letters, so no case";
  EXPECT_EQ(findIgnoringCase("\xe9", "\xc9"), PageText::npos) << "case is known of ASCII alone";
}

}  // namespace
}  // namespace nimbrel
