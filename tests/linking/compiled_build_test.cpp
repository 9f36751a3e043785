#include "linking/compiled_build.h"

#include <gtest/gtest.h>

namespace nimbrel {
namespace {

TEST(CompiledBuild, FollowsTheFirstMarkOfTheFirstValue) {
  const std::pair<const char*, int> rows[] = {
      {"//----------DHTML Menu Created using Nimbrel ver 2.0-#460---------------\r\nvar n=null;", 460},
      {"//-#12345", 1234},
      {"//-#46-9", 46},
      {"//-#", 0},
      {"//-#9#460", 9},
      {"", 200},
      {"//,-#460", 200},
      {"\r\n//-#460", 200},
  };
  for (const auto& [bytes, build] : rows) EXPECT_EQ(compiledBuild(bytes), build) << bytes;
}

TEST(CompiledBuild, From400OnCanBeLinked) {
  EXPECT_EQ(refusalOfCompiledMenu("//-#400---"), nullptr);
  EXPECT_NE(refusalOfCompiledMenu("//-#399---"), nullptr);
}

}  // namespace
}  // namespace nimbrel
