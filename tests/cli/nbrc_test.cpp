#include "cli/nbrc_test.h"

namespace nimbrel {
namespace {

using testing::HasSubstr;
using testing::StartsWith;

TEST_F(NbrcTest, WrongCallsGiveTwoAndDoNothing) {
  for (const std::vector<std::string>& words : std::vector<std::vector<std::string>>{
           {},
           {"frobnicate"},
           {"new"},
           {"new", "a.nbr", "b.nbr"},
           {"show", "--xml", "a.nbr"},
           {"convert", "a.nbr"},
           {"compile", "a.nbr"},
           {"compile", "a.nbr", "--to"},
           {"link", "a.js"},
           {"check", "a.nbr", "--home"},
       }) {
    const auto [status, out, err] = run(words);
    EXPECT_EQ(status, 2) << testing::PrintToString(words);
    EXPECT_EQ(out, "");
    EXPECT_NE(err, "");
  }
  EXPECT_FALSE(std::filesystem::exists("a.nbr"));
}

TEST_F(NbrcTest, HelpAndVersion) {
  for (const std::vector<std::string>& words : std::vector<std::vector<std::string>>{{"--help"},
                                                                                     {"new", "--help"},
                                                                                     {"show", "--help"},
                                                                                     {"convert", "--help"},
                                                                                     {"compile", "--help"},
                                                                                     {"link", "--help"},
                                                                                     {"preview", "--help"},
                                                                                     {"check", "--help"}}) {
    const auto [status, out, err] = run(words);
    EXPECT_EQ(status, 0);
    EXPECT_THAT(out, HasSubstr("Usage: nbrc")) << words.front();
    EXPECT_EQ(err, "");
  }
  EXPECT_EQ(run({"--version"}).out, "nbrc 2.0 build 460\n");
}

TEST_F(NbrcTest, AFileThatIsNotThereIsNamedWithTheReason) {
  const auto expected = fault("gone.nbr", "No such file or directory");
  for (const std::vector<std::string>& words : std::vector<std::vector<std::string>>{
           {"show", "gone.nbr"},
           {"show", "--json", "gone.nbr"},
           {"check", "gone.nbr"},
           {"convert", "gone.nbr", "out.nbr"},
           {"compile", "gone.nbr", "--to", "out.js"},
           {"--home", "home", "preview", "gone.nbr"},
           {"link", "gone.nbr", "page.html"},
       }) {
    const auto [status, out, err] = run(words);
    EXPECT_EQ(status, 1) << words.front();
    EXPECT_EQ(out, "");
    EXPECT_EQ(err, expected) << words.front();
  }
  EXPECT_FALSE(std::filesystem::exists("out.nbr"));
  EXPECT_FALSE(std::filesystem::exists("home/preview"));
}

TEST_F(NbrcTest, WordsThatLookLikeOthersArePaths) {
  for (const std::string name : {"show", "new", "my menu", "меню.nbr", "caf\xE9.nbr", "[m].nbr", "a;b"}) {
    EXPECT_EQ(run({"new", name}).status, 0) << name;
    EXPECT_TRUE(std::filesystem::exists(name)) << name;
    EXPECT_THAT(run({"show", name}).out, StartsWith("M0 Main Menu\n"));
  }
  EXPECT_EQ(run({"new", "--", "-m.nbr"}).status, 0);
  EXPECT_THAT(run({"show", "--", "-m.nbr"}).out, StartsWith("M0 Main Menu\n"));
}

}  // namespace
}  // namespace nimbrel
