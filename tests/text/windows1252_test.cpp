#include "text/windows1252.h"

#include <gtest/gtest.h>
#include <random>

namespace nimbrel {
namespace {

TEST(Windows1252, MapsTheUpperHalfAndStoresOtherCharactersAsReferences) {
  for (const auto& [oneByte, utf8] : std::vector<std::pair<std::string, std::string>>{
           {"a\x80\x99\xE4\xFF", "a€™äÿ"},
           {"\x81\x8D\x8F\x90\x9D", "\u0081\u008D\u008F\u0090\u009D"},
           {"&#1052;&#30446; &#128512;", "М目 😀"},
       }) {
    EXPECT_EQ(toUtf8(oneByte), utf8);
    EXPECT_EQ(fromUtf8(utf8), oneByte);
  }
}

TEST(Windows1252, LeavesReferencesInOtherFormsUnchanged) {
  for (const auto* text : {"&#65;", "&#228;", "&#129;", "&#01052;", "&#x41C;", "&#1052", "&#;", "&amp;", "&#",
                           "&#1114112;", "&#55296;", "&#99999999999;"}) {
    EXPECT_EQ(toUtf8(text), text);
  }
}

TEST(Windows1252, ReadsInvalidUtf8AsBytes) {
  for (const auto* text : {"\xE4",                 // truncated
                           "\xE0\x80\xAF",         // overlong
                           "\xED\xA0\x80",         // a surrogate
                           "\xF8\x90\x80\x80",     // not a valid first byte
                           "\xF4\x90\x80\x80"}) {  // after the last code point
    EXPECT_EQ(fromUtf8(text), text);
  }
}

TEST(Windows1252, TextsAndHostNamesWithAnyBytesSurviveARoundTrip) {
  EXPECT_EQ(nameFromHost("a\\b").find('\\'), std::string::npos) << "would be a separator in document form";
  static const std::vector<std::string> confusing{
      "&",  "#",    "&#",       "1052",         "56448", "38", "92",    "47",     ";",
      "\\", "\x80", "\xD0\x9C", "\xED\xB2\x80", "\xE4",  "a",  "&#38;", "&#1052;"};
  std::mt19937 engine(1);
  for (int i = 0; i < 20'000; ++i) {
    std::string text;
    for (int piece = 0; piece < 6; ++piece) text += confusing[engine() % confusing.size()];
    ASSERT_EQ(fromUtf8(toUtf8(text)), text);
    ASSERT_EQ(nameToHost(nameFromHost(text)), text);
  }
}

}  // namespace
}  // namespace nimbrel
