#include "cli/nbrc_test.h"

namespace nimbrel {
namespace {

using testing::HasSubstr;
using testing::StartsWith;
using Calls = std::vector<std::vector<std::string>>;

TEST_F(NbrcTest, WrongCallsExitWithTwoAndDoNothing) {
  for (const auto& words : Calls{{},
                                 {"frobnicate"},
                                 {"new", "a.nbr", "b.nbr"},
                                 {"compile", "a.nbr", "--to"},
                                 {"style"},
                                 {"style", "apply", "Blue", "a.nbr", "--to", "b.nbr", "--scope", "all"}}) {
    const auto [status, out, err] = run(words);
    EXPECT_EQ(status, 2) << testing::PrintToString(words);
    EXPECT_TRUE(out.empty() && !err.empty()) << testing::PrintToString(words);
  }
  EXPECT_FALSE(std::filesystem::exists("a.nbr"));
}

TEST_F(NbrcTest, HelpAndVersion) {
  EXPECT_THAT(run({"--help"}).out, HasSubstr("Usage: nbrc"));
  EXPECT_EQ(run({"--version"}), (Outcome{0, "nbrc 2.0 build 460\n", ""}));
}

TEST_F(NbrcTest, AMissingFileIsNamedWithTheReason) {
  for (const auto& words : Calls{{"show", "gone.nbr"},
                                 {"check", "gone.nbr"},
                                 {"convert", "gone.nbr", "out.nbr"},
                                 {"compile", "gone.nbr", "--to", "out.js"},
                                 {"--home", "home", "preview", "gone.nbr"},
                                 {"link", "gone.nbr", "page.html"}}) {
    EXPECT_EQ(run(words), (Outcome{1, "", fault("gone.nbr", "No such file or directory")})) << words.front();
  }
  EXPECT_FALSE(std::filesystem::exists("out.nbr") || std::filesystem::exists("home/preview"));
}

TEST_F(NbrcTest, AnyNameCanBeAPath) {
  for (const std::string name : {"show", "my menu", "caf\xE9.nbr", "a;b"}) {
    EXPECT_EQ(run({"new", name}).status, 0) << name;
    EXPECT_TRUE(std::filesystem::exists(name)) << name;
  }
  EXPECT_THAT(run({"show", "--", "show"}).out, StartsWith("M0 Main Menu\n"));
}

}  // namespace
}  // namespace nimbrel
