#include <future>
#include <sys/wait.h>
#include <unistd.h>

#include "cli/nbrc_test.h"
#include "platform/memory/memory_file_system.h"

namespace nimbrel {
namespace {

using testing::HasSubstr;
using testing::Not;

class OutputCommands : public NbrcTest {
 protected:
  OutputCommands() {
    BuildDefaultDocument(document);
    save("m.nbr", document);
  }

  Outcome compileTo(const std::string& path) {
    return run({"--home", "home", "compile", "m.nbr", "--to", path});
  }

  ItemObj& item() { return *document.get<ItemObj>(*document.tvTreeView.find("I1")); }

  Document document;
};

TEST_F(OutputCommands, CompilePrintsTheFilesItMadeAsHostPaths) {
  write("a b.gif", "GIF89a");
  item().ItemImage1 = "*\\a b.gif";
  save("m.nbr", document);
  const auto menuFile = read("m.nbr");
  std::filesystem::create_directory("my site");
  const std::string data = "my site/nbrData-menu1/";
  for (int time = 0; time < 2; ++time) {  // the second one replaces the files
    const auto outcome = compileTo("my site/menu1.js");
    EXPECT_EQ(outcome,
              (Outcome{0,
                       data + "nbrlib0.js\n" + data + "nbrlib1.js\n" + data + "nbrlib2.js\n" + data +
                           "nbrlib3.js\n" + data + "nbrlib4.js\n" + data + "nbrlib5.js\n" + data +
                           "dot.gif\nmy site/nbrmenupath.gif\n" + data + "a b.gif\nmy site/menu1.js\n",
                       ""}));
  }
  EXPECT_EQ(read("m.nbr"), menuFile);
}

TEST_F(OutputCommands, CompilesToAnyPath) {
  for (const auto& path : {std::string("menu.js"), (here / "abs.js").string(), std::string("./home/../up.js"),
                           std::string("меню.js"), std::string("a&b\\c.js")}) {
    EXPECT_EQ(compileTo(path).err, "") << path;
    EXPECT_TRUE(std::filesystem::is_regular_file(path)) << path;
  }
  EXPECT_THAT(read("меню.js"), HasSubstr("\r\nvar nbrMenuName='&#1084;&#1077;&#1085;&#1102;';\r\n"));

  MemoryFileSystem disk;
  disk.files = {{"\\menus\\m.nbr", read("m.nbr")}};
  EXPECT_EQ(runOn(disk, {"--home", "/home", "compile", "/menus/m.nbr", "--to", "/m.js"}).out, "/m.js\n");
  EXPECT_THAT(disk.read("\\m.js"), HasSubstr("\r\nvar nbrLibraryPath='/nbrData-m';\r\n"));
}

TEST_F(OutputCommands, CompileRefusesNames) {
  for (const char* name : {"my menu.js", "js", "home/"}) {
    const auto [status, out, err] = compileTo(name);
    EXPECT_EQ(status, 1) << name;
    EXPECT_THAT(err, testing::StartsWith(std::string("nbrc: ") + name + ": The ")) << name;
  }
  EXPECT_FALSE(std::filesystem::exists("nbrmenupath.gif"));
}

/// What a menu file from a stranger could do to the files of the author.
TEST_F(OutputCommands, CompileWritesInItsFolderOnlyAndCopiesPicturesOnly) {
  namespace fs = std::filesystem;
  fs::create_directories("site/inner");
  fs::create_directory("elsewhere");
  for (const auto* name : {".bashrc", "index.html", "elsewhere/kept"}) write(name, "author's");
  fs::create_directory("evil");
  write("evil/.bashrc", "stranger's");
  const auto contents = [this] {
    std::string all;
    for (const auto& entry : fs::recursive_directory_iterator(here)) {
      if (entry.is_regular_file() && entry.path().filename() != "m.nbr")
        all += entry.path().string() + bytesOf(entry.path());
    }
    return all;
  };
  for (const auto* folder :
       {"..", "..\\..\\x", "a/../../x", "/tmp", "\\tmp", "C:\\x", "a\\\\b", "a/", ".", "./a", ".. "}) {
    for (auto member : {&CompileSettings::nbrImagePath, &CompileSettings::nbrLibraryPath}) {
      document.settings = {};
      document.settings.*member = folder;
      item().ItemImage1 = "*\\evil\\.bashrc";
      save("m.nbr", document);
      const auto before = contents();
      const auto outcome = compileTo("site/menu.js");
      EXPECT_EQ(outcome.status, 1) << folder;
      EXPECT_THAT(outcome.err, HasSubstr("must be inside the folder of the compiled menu")) << folder;
      EXPECT_EQ(contents(), before) << folder;
      EXPECT_THAT(run({"check", "m.nbr"}).err, HasSubstr("must be inside the folder")) << folder;
    }
  }
  document.settings = {};
  document.settings.nbrImagePath = "inner/deep";
  fs::create_symlink(here / "elsewhere", here / "site/inner/deep");
  write("evil/a.gif", "GIF89a");
  item().ItemImage2 = "*\\evil\\a.gif";
  save("m.nbr", document);
  const auto linked = compileTo("site/menu.js");
  EXPECT_EQ(linked.status, 1);
  EXPECT_THAT(linked.err, HasSubstr(".bashrc: is not a picture"));
  EXPECT_THAT(linked.err, HasSubstr("leads out of site and is not followed"));
  EXPECT_FALSE(fs::exists("elsewhere/a.gif"));
  EXPECT_FALSE(fs::exists("elsewhere/.bashrc"));
}

TEST_F(OutputCommands, CompileLeavesOutLargePicturesAndWarnsOfPrivateOnes) {
  namespace fs = std::filesystem;
  write("large.gif", "GIF89a");
  fs::resize_file("large.gif", (std::uintmax_t{64} << 20) + 1);
  write("own.gif", "GIF89a");
  fs::permissions("own.gif", fs::perms::owner_read | fs::perms::owner_write);
  item().ItemImage1 = "*\\own.gif";
  save("m.nbr", document);
  EXPECT_EQ(compileTo("a.js").status, 0);
  item().ItemImage2 = "*\\large.gif";
  save("m.nbr", document);
  const auto outcome = compileTo("b.js");
  EXPECT_EQ(outcome.status, 1);
  EXPECT_THAT(outcome.err, HasSubstr("own.gif: warning: other users may not read this file"));
  EXPECT_THAT(outcome.err, HasSubstr("large.gif: is larger than 64 MiB"));
  EXPECT_TRUE(fs::exists("nbrData-b/own.gif"));
  EXPECT_FALSE(fs::exists("nbrData-b/large.gif"));
}

TEST_F(OutputCommands, CompileTellsOfTextsThatBreakTheScriptAndWritesThem) {
  item().URL = "c:\\x\\";
  save("m.nbr", document);
  const auto outcome = compileTo("a.js");
  EXPECT_EQ(outcome.status, 1);
  EXPECT_THAT(outcome.err,
              HasSubstr("URL of I1 holds a backslash that begins no escape, which breaks the script"));
  EXPECT_THAT(read("a.js"), HasSubstr("\"c:\\x\\\""));
}

TEST_F(OutputCommands, CompileReportsWhatFailedAndMakesTheRest) {
  std::filesystem::remove("home/libraries/nbrlib3.js");
  std::filesystem::create_directory("menu1.js");  // prevents writing the script
  const auto [status, out, err] = compileTo("menu1.js");
  EXPECT_EQ(status, 1);
  EXPECT_THAT(err, HasSubstr("nbrc: home/libraries/nbrlib3.js: No such file or directory\n"));
  EXPECT_THAT(err, HasSubstr("nbrc: ./menu1.js: Is a directory\n"));
  EXPECT_THAT(out, HasSubstr("./nbrData-menu1/nbrlib4.js\n"));
  EXPECT_THAT(out, Not(HasSubstr("/menu1.js\n")));

  write("bare.nbr", "nbr200\r\n");
  EXPECT_EQ(run({"compile", "bare.nbr", "--to", "bare.js"}),
            (Outcome{1, "", fault("bare.nbr", "There is no main menu to compile.")}));
}

TEST_F(OutputCommands, PreviewPrintsThePathOfThePage) {
  EXPECT_EQ(run({"preview", "m.nbr", "--home", "home"}), (Outcome{0, "home/preview/preview.html\n", ""}));
  EXPECT_EQ(run({"preview", "m.nbr", "--home", "nowhere"}).status, 1);
}

TEST_F(OutputCommands, PreviewsAtTheSameTimeWaitForEachOther) {
  const Outcome made{0, "home/preview/preview.html\n", ""};
  const auto preview = [this] { return run({"preview", "m.nbr", "--home", "home"}); };
  preview();
  const auto page = read("home/preview/preview.html");
  for (int round = 0; round < 5; ++round) {
    std::vector<std::future<Outcome>> runs;
    for (int i = 0; i < 6; ++i) runs.push_back(std::async(std::launch::async, preview));
    for (auto& one : runs) EXPECT_EQ(one.get(), made);
  }
  EXPECT_EQ(read("home/preview/preview.html"), page);
  EXPECT_TRUE(std::filesystem::exists("home/preview/nbrData/nbrlib5.js"));
}

class LinkCommand : public OutputCommands {
 protected:
  LinkCommand() {
    compileTo("menu1.js");
    std::filesystem::create_directory("pages");
    for (const char* page : {"a.html", "pages/b c.html"}) write(page, "<html><body>\nText\n</body></html>\n");
  }
};

TEST_F(LinkCommand, LinksEachPageInPlace) {
  EXPECT_EQ(run({"link", "menu1.js", "a.html", "pages/b c.html", "--alt-url", "x.html"}),
            (Outcome{0, "", ""}));
  EXPECT_THAT(read("a.html"), HasSubstr("nbrAltUrl='x.html';"));
  EXPECT_THAT(read("pages/b c.html"), HasSubstr("<script src='../menu1.js' "));
}

TEST_F(LinkCommand, ContinuesAfterAPageThatFails) {
  const auto page = read("a.html");
  std::filesystem::permissions("a.html", std::filesystem::perms::owner_read);
  EXPECT_EQ(
      run({"link", "menu1.js", "gone.html", "a.html", "pages/b c.html"}),
      (Outcome{1, "", fault("gone.html", "No such file or directory") + fault("a.html", "is read-only")}));
  EXPECT_EQ(read("a.html"), page);
  EXPECT_THAT(read("pages/b c.html"), HasSubstr("nbrBuildMenu();"));
}

TEST_F(LinkCommand, SeveralProgramsOnOnePageKeepEachOthersLinks) {
  constexpr int programs = 8;
  std::vector<pid_t> children;
  for (int i = 0; i < programs; ++i) {
    const auto menu = "menu" + std::to_string(i) + ".js";
    write(menu, read("menu1.js"));
    const pid_t child = ::fork();
    if (child == 0) ::_exit(run({"link", menu, "a.html"}).status);
    children.push_back(child);
  }
  for (const pid_t child : children) ::waitpid(child, nullptr, 0);
  for (int i = 0; i < programs; ++i)
    EXPECT_THAT(read("a.html"), HasSubstr("menu" + std::to_string(i) + ".js"));
}

TEST_F(LinkCommand, RefusesACompiledFileThatIsTooOld) {
  const auto page = read("a.html");
  write("old.js", "// ver 1.3-#399---\r\n");
  const auto [status, out, err] = run({"link", "old.js", "a.html"});
  EXPECT_EQ(status, 1);
  EXPECT_THAT(err, HasSubstr("older version of Nimbrel. You need to re-compile it before"));
  EXPECT_EQ(read("a.html"), page);
}

TEST_F(LinkCommand, ShowsProgressOnlyOnATerminal) {
  const auto err = runOn(files, {"link", "menu1.js", "a.html", "pages/b c.html"}, true).err;
  EXPECT_THAT(err, HasSubstr("[####################....................] 50 %"));
  EXPECT_THAT(err, HasSubstr(" 100 %"));
  EXPECT_TRUE(err.ends_with("\r")) << "and leaves an empty line";
}

}  // namespace
}  // namespace nimbrel
