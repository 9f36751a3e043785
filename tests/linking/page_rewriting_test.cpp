#include "linking/page_rewriting.h"

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <map>

namespace nimbrel {
namespace {

namespace fs = std::filesystem;

std::string bytesOf(const fs::path& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

/// The paths and the address of a case. The optional file `case` overrides the defaults.
std::map<std::string, std::string> settingsOf(const fs::path& folder) {
  std::map<std::string, std::string> settings{{"page", "c:\\site\\index.html"},
                                              {"compiled", "c:\\site\\m1.js"}};
  std::ifstream lines(folder / "case");
  for (std::string name, value; lines >> name && std::getline(lines >> std::ws, value);)
    settings[name] = value;
  return settings;
}

// Each folder is a case: a page before and after linking.
TEST(PageRewriting, LinksThePageOfEachCase) {
  int cases = 0;
  for (const auto& folder : fs::directory_iterator(fs::path(NIMBREL_TEST_DATA) / "pages")) {
    SCOPED_TRACE(folder.path().filename());
    auto settings = settingsOf(folder);
    EXPECT_EQ(linkedPage(bytesOf(folder.path() / "before.html"), settings["page"], settings["compiled"],
                         settings["address"]),
              bytesOf(folder.path() / "after.html"));
    ++cases;
  }
  EXPECT_GT(cases, 0);
}

}  // namespace
}  // namespace nimbrel
