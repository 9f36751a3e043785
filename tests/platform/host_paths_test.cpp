#include "platform/posix/host_paths.h"

#include <filesystem>
#include <gtest/gtest.h>

namespace nimbrel {
namespace {

TEST(HostPaths, ConvertSeparatorsAndNames) {
  EXPECT_EQ(toHostPath("\\home\\Gr\xF6.nbr"), "/home/Grö.nbr");
  EXPECT_EQ(fromHostPath("/home/Grö.nbr"), "\\home\\Gr\xF6.nbr");
}

TEST(HostPaths, SurviveARoundTripWithAnyNames) {
  for (const auto* path : {"/a\\b/c", "/Меню/&#1052;/m.js", "/\xE4\xFF/m.js", "//a/", "a"}) {
    EXPECT_EQ(toHostPath(fromHostPath(path)), path);
  }
}

TEST(HostPaths, AreMadeAbsolute) {
  EXPECT_EQ(absoluteHostPath("/a/./b/../c.nbr"), "/a/c.nbr");
  EXPECT_EQ(absoluteHostPath("c.nbr"), std::filesystem::current_path() / "c.nbr");
}

}  // namespace
}  // namespace nimbrel
