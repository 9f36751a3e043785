#include "text/paths.h"

#include <gtest/gtest.h>

namespace nimbrel {
namespace {

TEST(Paths, AreParted) {
  EXPECT_EQ(fileName("C:\\site\\m.js"), "m.js");
  EXPECT_EQ(fileName("m.js"), "m.js");
  EXPECT_EQ(fileName("C:\\site\\"), "");
  EXPECT_EQ(fileName("\\home/me"), "home/me");
  EXPECT_EQ(folderName("C:\\site\\m.js"), "C:\\site");
  EXPECT_EQ(folderName("m.js"), "");
}

TEST(Paths, AreJoined) {
  EXPECT_EQ(joinPath("C:\\site", "m.js"), "C:\\site\\m.js");
  EXPECT_EQ(joinPath("", "m.js"), "m.js");
  EXPECT_EQ(GalleryImagePath("C:\\pictures\\a.gif", "gallery\\Blue-images"), "gallery\\Blue-images\\a.gif");
  EXPECT_EQ(GalleryImagePath("a.gif", ""), "\\a.gif");
}

}  // namespace
}  // namespace nimbrel
