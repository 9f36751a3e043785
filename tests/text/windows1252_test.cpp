#include "text/windows1252.h"

#include <gtest/gtest.h>
#include <random>

namespace nimbrel {
namespace {

TEST(Windows1252, MapsTheUpperHalf) {
  EXPECT_EQ(toUtf8("a\x80\x99\xE4\xFF"), "a€™äÿ");
  EXPECT_EQ(fromUtf8("a€™äÿ"), "a\x80\x99\xE4\xFF");
  EXPECT_EQ(toUtf8("\x81\x8D\x8F\x90\x9D"), "\u0081\u008D\u008F\u0090\u009D");
}

TEST(Windows1252, KeepsEveryByte) {
  for (int byte = 0; byte < 256; ++byte) {
    const std::string text(1, static_cast<char>(byte));
    EXPECT_EQ(fromUtf8(toUtf8(text)), text) << byte;
  }
}

TEST(Windows1252, HoldsWhatTheSetLacksAsReference) {
  EXPECT_EQ(fromUtf8("Меню 目録 😀"), "&#1052;&#1077;&#1085;&#1102; &#30446;&#37682; &#128512;");
  EXPECT_EQ(toUtf8("&#1052;&#1077;&#1085;&#1102; &#128512;"), "Меню 😀");
  EXPECT_EQ(fromUtf8("\u0080"), "&#128;");
}

TEST(Windows1252, LeavesReferencesThatItDoesNotWrite) {
  for (const auto* text : {"&#65;", "&#228;", "&#129;", "&#01052;", "&#x41C;", "&#1052", "&#;", "&amp;", "&#",
                           "&#1114112;", "&#55296;", "&#99999999999;"}) {
    EXPECT_EQ(toUtf8(text), text);
  }
}

TEST(Windows1252, TakesBrokenUtf8AsBytes) {
  EXPECT_EQ(fromUtf8("\xE4"), "\xE4");                          // cut off
  EXPECT_EQ(fromUtf8("\xC0\xAF"), "\xC0\xAF");                  // longer than needed
  EXPECT_EQ(fromUtf8("\xED\xA0\x80"), "\xED\xA0\x80");          // a surrogate
  EXPECT_EQ(fromUtf8("\xF4\x90\x80\x80"), "\xF4\x90\x80\x80");  // past the last character
}

/// Texts of pieces that codecs mix up.
std::string tangle(std::mt19937& engine) {
  static const std::vector<std::string> pieces{
      "&",  "#",    "&#",       "1052",         "56448", "38", "92",    "47",     ";",
      "\\", "\x80", "\xD0\x9C", "\xED\xB2\x80", "\xE4",  "a",  "&#38;", "&#1052;"};
  std::string text;
  for (int i = 0; i < 6; ++i) text += pieces[engine() % pieces.size()];
  return text;
}

TEST(Windows1252, OneByteTextComesBack) {
  std::mt19937 engine(1);
  for (int i = 0; i < 20'000; ++i) {
    const auto text = tangle(engine);
    ASSERT_EQ(fromUtf8(toUtf8(text)), text);
  }
}

TEST(HostNames, ComeBackWhateverTheirBytes) {
  EXPECT_EQ(nameFromHost("Größe.html"),
            "Gr\xF6\xDF"
            "e.html");
  EXPECT_EQ(nameToHost(nameFromHost("Меню&#1052;.html")), "Меню&#1052;.html");
  EXPECT_EQ(nameFromHost("a\\b").find('\\'), std::string::npos) << "would part a path in document form";
  std::mt19937 engine(2);
  for (int i = 0; i < 20'000; ++i) {
    const auto name = tangle(engine);
    ASSERT_EQ(nameToHost(nameFromHost(name)), name);
  }
}

}  // namespace
}  // namespace nimbrel
