#include "persistence/file_handle.h"

#include <gtest/gtest.h>

namespace nimbrel {
namespace {

TEST(FileHandle, KnowsWhereItIs) {
  Findings notes;
  FileHandle file("C:\\a.nbr", "x\ny,z\n", notes);
  EXPECT_EQ(file.next(), "x");
  file.note("in the header");
  file.beginRecord();
  EXPECT_EQ(file.next(), "y");
  EXPECT_EQ(file.next(), "z");
  file.note("in the record");
  EXPECT_EQ(notes,
            (Findings{{"C:\\a.nbr", "in the header", {0, 1}}, {"C:\\a.nbr", "in the record", {1, 2}}}));
  try {
    file.next();
    FAIL() << "the file is at its end";
  } catch (const FileError& error) {
    EXPECT_EQ(error.finding(), (Finding{"C:\\a.nbr", "the file ends inside a record", {1, 2}}));
  }
}

TEST(FileHandle, SharesTextsThatComeAgain) {
  Findings notes;
  FileHandle file("", "", notes);
  const SharedText first = file.shared("sans-serif");
  EXPECT_EQ(file.shared(std::string("sans-serif")).view().data(), first.view().data());
  EXPECT_EQ(file.shared(""), "");
  // Far more texts than are remembered: each is still its own.
  for (int i = 0; i < 10'000; ++i) {
    const auto text = std::to_string(i);
    ASSERT_EQ(file.shared(text).view(), text);
  }
  EXPECT_EQ(first, "sans-serif");
}

TEST(Quoted, IsShortAndPrintable) {
  EXPECT_EQ(quoted("a\t\x1B"
                   "b"),
            "\"a??b\"");
  EXPECT_EQ(nimbrel::quoted(std::string(41, 'x')), "\"" + std::string(40, 'x') + "...\"");
}

}  // namespace
}  // namespace nimbrel
