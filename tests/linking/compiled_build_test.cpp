#include "linking/compiled_build.h"

#include <gtest/gtest.h>

namespace nimbrel {
namespace {

TEST(CompiledBuild, StandsBehindTheFirstMarkOfTheFirstValue) {
  const std::pair<const char*, int> rows[] = {
      {"//----------DHTML Menu Created using Nimbrel ver 2.0-#460---------------\r\nvar n=null;", 460},
      {"//-#1000---", 1000},
      {"//-#12345", 1234},
      {"//-#46-9", 46},
      {"//-#46", 46},
      {"//-#", 0},
      {"//-# 460", 0},
      {"//-#-460", 0},
      {"//-#9#460", 9},
      {"var a=1;", 200},
      {"", 200},
      {"//,-#460", 200},
      {"//\n#460", 200},
      {"\r\n//-#460", 200},
  };
  for (const auto& [bytes, build] : rows) EXPECT_EQ(compiledBuild(bytes), build) << bytes;
}

TEST(CompiledBuild, From400OnCanBeLinked) {
  EXPECT_EQ(refusalOfCompiledMenu("//-#400---"), nullptr);
  const auto* refusal = refusalOfCompiledMenu("//-#399---");
  ASSERT_NE(refusal, nullptr);
  EXPECT_EQ(refusal->title, "Menu compiled with older version");
}

}  // namespace
}  // namespace nimbrel
