#include "platform/file_error.h"

#include <gtest/gtest.h>

namespace nimbrel {
namespace {

TEST(FileError, TellsThePlaceAheadOfTheReason) {
  EXPECT_EQ((Finding{"a.nbr", "broken", {3, 19}}.text()), "record 3, line 19: broken");
  EXPECT_EQ((Finding{"a.nbr", "broken", {0, 19}}.text()), "line 19: broken");
  EXPECT_STREQ(FileError("a.nbr", "broken").what(), "broken");
  EXPECT_EQ(FileError("a.nbr", "broken").finding().path, "a.nbr");
}

}  // namespace
}  // namespace nimbrel
