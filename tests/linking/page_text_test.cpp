#include "linking/page_text.h"

#include <gtest/gtest.h>

namespace nimbrel {
namespace {

TEST(PageText, ConvertsAllLineEndsToCrLf) {
  const std::pair<const char*, const char*> rows[] = {
      {"", ""},           {"\n", "\r\n"},           {"\r", "\r\n"},         {"a\r\nb", "a\r\nb"},
      {"a\nb", "a\r\nb"}, {"a\rb\n", "a\r\nb\r\n"}, {"\r\r\n", "\r\n\r\n"}, {"\n\r", "\r\n\r\n"},
  };
  // At every offset, because long text is processed in blocks.
  for (std::size_t place = 0; place < 600; ++place) {
    const std::string before(place, 'x');
    for (const auto& [given, wanted] : rows) EXPECT_EQ(PageText(before + given).text(), before + wanted);
  }
}

TEST(PageText, FindsTheFirstMatchIgnoringCase) {
  for (const std::string wanted : {"</body>", "<!-- x -->", "@[`{"}) {
    const auto capitals = wanted == "</body>" ? "</BoDy>" : wanted;
    for (std::size_t place = 0; place < 600; ++place) {
      // Surrounded by near matches: the last byte missing, or bytes that differ only in the case bit.
      std::string text(place, wanted[0]);
      text += capitals + wanted + std::string(600 - place, '\x1c') + wanted.substr(0, wanted.size() - 1);
      EXPECT_EQ(findIgnoringCase(text, wanted), place);
      EXPECT_EQ(findIgnoringCase(text, wanted, place + 1), place + wanted.size());
      EXPECT_EQ(findIgnoringCase(text, wanted, place + wanted.size() + 1), PageText::npos);
    }
  }
  EXPECT_EQ(findIgnoringCase("`@{[", "@`[{"), PageText::npos) << "no letters, so no case";
  EXPECT_EQ(findIgnoringCase("\xe9", "\xc9"), PageText::npos) << "only ASCII letters have case";
}

}  // namespace
}  // namespace nimbrel
