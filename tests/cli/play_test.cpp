#include "nbrc_test.h"

namespace nimbrel {
namespace {

namespace fs = std::filesystem;

std::string replaced(std::string text, const std::string& what, const std::string& by) {
  for (auto at = text.find(what); at != std::string::npos; at = text.find(what, at + by.size())) {
    text.replace(at, what.size(), by);
  }
  return text;
}

class Play : public NbrcTest {
 protected:
  Play() {
    write("home/TIPOFDAY.TXT", "First tip\nSecond tip\n");
    fs::create_directories(here / "site");
    fs::create_directories(here / "pictures");
    write("site/a.html", "<html><body></body></html>");
    write("foreign.nbr", "nothing of ours");
    run({"new", "whole.nbr"});
    constexpr std::size_t insideARecord = 900;
    write("broken.nbr", read("whole.nbr").substr(0, insideARecord));
    write("later.nbr", replaced(read("whole.nbr"), ",[nbrEI]", ",later,[nbrEI]"));
  }

  /// Replaces the folder of this test, which has another name each time.
  std::string withoutFolder(const std::string& text) const {
    auto inJson = replaced(here.string(), "/", "\\\\");
    return replaced(replaced(text, inJson, "HERE"), here.string(), "HERE");
  }

  Outcome play(const std::string& macro, const std::vector<std::string>& options = {}) {
    write("test.macro", macro);
    std::vector<std::string> words{"--home", "home", "play", "test.macro"};
    words.insert(words.end(), options.begin(), options.end());
    return run(words);
  }
};

TEST_F(Play, EachMacroPrintsItsTranscript) {
  const fs::path folder = fs::path(NIMBREL_TEST_DATA) / "golden/macros";
  int macros = 0;
  for (const auto& entry : fs::directory_iterator(folder)) {
    if (entry.path().extension() != ".macro") continue;
    ++macros;
    SCOPED_TRACE(entry.path().filename());
    fs::remove_all(here / "home/gallery");
    const auto outcome = play(read(entry.path()));
    EXPECT_EQ(outcome.err, "");
    EXPECT_EQ(outcome.status, outcome.out.find("{\"error\":") == std::string::npos ? 0 : 1);
    auto expected = entry.path();
    EXPECT_EQ(withoutFolder(outcome.out), read(expected.replace_extension(".jsonl")));
  }
  EXPECT_GT(macros, 4);
}

/// Each is a start of the program. One that ends without closing its window leaves what a crash would.
TEST_F(Play, UnsavedChangesAreOfferedAtTheNextStart) {
  const fs::path folder = fs::path(NIMBREL_TEST_DATA) / "golden/macros/recovery";
  int starts = 0;
  for (; fs::exists(folder / (std::to_string(starts + 1) + ".macro")); ++starts) {
    const auto name = std::to_string(starts + 1);
    SCOPED_TRACE(name);
    const auto outcome = play(read(folder / (name + ".macro")), {"--state", "state"});
    EXPECT_EQ(outcome.err, "");
    EXPECT_EQ(withoutFolder(outcome.out), read(folder / (name + ".jsonl")));
  }
  EXPECT_GT(starts, 4);
  EXPECT_TRUE(fs::is_empty("state/recovery"));
}

TEST_F(Play, AFaultOfAMacroEndsItAndNamesTheLine) {
  for (const auto& [macro, fault] : std::vector<std::pair<std::string, std::string>>{
           {"print tree\nwave\n", "line 2: unknown statement wave"},
           {"select I9\n", "line 1: no node I9"},
           {"run mnuNothing\n", "line 1: no command mnuNothing"},
           {"edit 0 1\n", "line 1: edit needs more words"},
           {"print \"a\"b\n", "line 1: a word goes on after its closing quote"},
           {"answer Maybe\n", "line 1: no button: Maybe"},
           {"press btnFile\n", "line 1: no cell is open"},
           {"print \"tree\n", "line 1: a quoted word has no closing quote"},
           {"form frmAbout cmdOK! lblTitle?\nrun mnuHelpAbout\n",
            "line 2: frmAbout is closed before the step lblTitle?"},
           {"close\nrun mnuFileNew\n", "line 2: the window is closed"},
           {"touch ../a.nbr x\n", "line 1: ../a.nbr is not in the folder of the macro"},
       }) {
    const auto outcome = play(macro);
    EXPECT_EQ(outcome.status, 2) << macro;
    EXPECT_THAT(outcome.err, testing::HasSubstr(fault));
  }
}

TEST_F(Play, ReadsAndWritesASettingsFile) {
  write("test.macro", "choose cancel\nrun mnuFileOpen\nrun mnuToolsShowPreviewOnStartup\n");
  run({"--home", "home", "play", "--settings", "settings.json", "test.macro"});
  EXPECT_EQ(read("settings.json"),
            "{\"settings\":{\"Settings\":{\"FirstOpen\":\"0\",\"ShowPreviewOnStartup\":\"False\"}}}\n");
  write("test.macro", "print commands\n");
  const auto outcome = run({"--home", "home", "play", "--settings", "settings.json", "test.macro"});
  EXPECT_THAT(outcome.out,
              testing::HasSubstr("\"Open Preview Window on Startup\",\"enabled\":true,\"visible\":true,"
                                 "\"checked\":false"));
}

}  // namespace
}  // namespace nimbrel
