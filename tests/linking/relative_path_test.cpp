#include "linking/relative_path.h"

#include <gtest/gtest.h>

namespace nimbrel {
namespace {

TEST(RelativePath, LeadsFromThePagesFolderToTheTarget) {
  const struct {
    const char* page;
    const char* target;
    const char* path;
  } rows[] = {
      {"C:\\site\\a.html", "C:\\site\\m.js", "m.js"},
      {"C:\\site\\sub\\a.html", "C:\\site\\m.js", "../m.js"},
      {"C:\\site\\a.html", "C:\\site\\js\\m.js", "js/m.js"},
      {"C:\\site\\sub\\a.html", "C:\\site\\menu\\m.js", "../menu/m.js"},
      {"C:\\site\\a.html", "D:\\m.js", "D:\\m.js"},
      {"C:\\site\\a.html", "C:\\site\\a.html", "a.html"},
      {"C:\\Site\\a.html", "C:\\site\\m.js", "../site/m.js"},
      {"c:\\site\\a.html", "C:\\site\\m.js", "C:\\site\\m.js"},
      {"C:\\a\\b\\c\\p.html", "C:\\a", "../../../a"},
      {"\\home\\me\\a.html", "\\srv\\m.js", "../../srv/m.js"},
      {"a.html", "m.js", "m.js"},
  };
  for (const auto& row : rows) EXPECT_EQ(RelativePath(row.page, row.target), row.path) << row.page;
}

TEST(RelativePath, IsSplitAtItsLastSlash) {
  EXPECT_EQ(PathFolder("../menus/m.js"), "../menus");
  EXPECT_EQ(PathFolder("/m.js"), "");
  EXPECT_EQ(PathFolder("m.js"), "");
  EXPECT_EQ(PathFileName("../menus/m.js"), "m.js");
  EXPECT_EQ(PathFileName("menus/"), "");
  EXPECT_EQ(PathFileName("D:\\m.js"), "D:\\m.js");
}

}  // namespace
}  // namespace nimbrel
