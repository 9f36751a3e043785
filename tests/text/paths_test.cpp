#include "text/paths.h"

#include <gtest/gtest.h>

namespace nimbrel {
namespace {

TEST(Paths, ArePartedAndJoined) {
  EXPECT_EQ(fileName("C:\\site\\m.js"), "m.js");
  EXPECT_EQ(folderName("C:\\site\\m.js"), "C:\\site");
  EXPECT_EQ(folderName("m.js"), "");
  EXPECT_EQ(joinPath("C:\\site", "m.js"), "C:\\site\\m.js");
  EXPECT_EQ(joinPath("", "m.js"), "m.js");
}

}  // namespace
}  // namespace nimbrel
