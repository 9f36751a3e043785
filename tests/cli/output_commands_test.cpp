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

TEST_F(OutputCommands, CompilePrintsWhatItMadeInTheSystemsForm) {
  write("a b.gif", "GIF89a");
  item().ItemImage1 = "*\\a b.gif";
  save("m.nbr", document);
  const auto menuFile = read("m.nbr");
  std::filesystem::create_directory("my site");
  const auto [status, out, err] = compileTo("my site/menu1.js");
  EXPECT_EQ(status, 0);
  EXPECT_EQ(err, "");
  const std::string data = "my site/nbrData-menu1/";
  EXPECT_EQ(out, data + "nbrlib0.js\n" + data + "nbrlib1.js\n" + data + "nbrlib2.js\n" + data +
                     "nbrlib3.js\n" + data + "nbrlib4.js\n" + data + "nbrlib5.js\n" + data +
                     "dot.gif\nmy site/nbrmenupath.gif\n" + data + "a b.gif\nmy site/menu1.js\n");
  std::istringstream lines(out);
  for (std::string path; std::getline(lines, path);) EXPECT_TRUE(std::filesystem::exists(path)) << path;
  EXPECT_EQ(read("m.nbr"), menuFile);

  const auto script = read("my site/menu1.js");
  EXPECT_EQ(compileTo("my site/menu1.js").status, 0) << "what is there is replaced";
  EXPECT_EQ(read("my site/menu1.js"), script);
}

TEST_F(OutputCommands, CompileToNamesOfAnyKind) {
  for (const auto& path : std::vector<std::string>{"menu.js", absolute("abs.js"), "./home/../up.js",
                                                   "меню.js", "café.js", "a&b\\c.js"}) {
    const auto outcome = compileTo(path);
    EXPECT_EQ(outcome.err, "") << path;
    EXPECT_EQ(outcome.status, 0) << path;
    EXPECT_TRUE(std::filesystem::is_regular_file(path)) << path;
  }
  EXPECT_THAT(read("меню.js"), HasSubstr("\r\nvar nbrMenuName='&#1084;&#1077;&#1085;&#1102;';\r\n"));
  EXPECT_TRUE(std::filesystem::is_directory("nbrData-меню"));

  MemoryFileSystem disk;
  disk.files = {{"\\menus\\m.nbr", read("m.nbr")}};
  const auto inRoot = runOn(disk, {"--home", "/home", "compile", "/menus/m.nbr", "--to", "/m.js"});
  EXPECT_EQ(inRoot.out, "/m.js\n");
  EXPECT_THAT(disk.read("\\m.js"), HasSubstr("\r\nvar nbrLibraryPath='/nbrData-m';\r\n"));
}

TEST_F(OutputCommands, CompileRefusesNames) {
  EXPECT_EQ(compileTo("my menu.js").err,
            "nbrc: my menu.js: The compiled menu name cannot contain spaces, as it will not work properly in "
            "Netscape browsers. Please remove the spaces from the name.\n");
  for (const char* name : {"my menu.js", "js", "home/", "home/a b"}) {
    const auto [status, out, err] = compileTo(name);
    EXPECT_EQ(status, 1) << name;
    EXPECT_EQ(out, "");
  }
  EXPECT_FALSE(std::filesystem::exists("nbrmenupath.gif"));
  EXPECT_EQ(compileTo(".js").status, 0);
  EXPECT_TRUE(std::filesystem::is_directory("nbrData-"));
}

TEST_F(OutputCommands, CompileMakesTheRestAndSaysWhatFailed) {
  item().ItemImage1 = "*\\gone.gif";
  save("m.nbr", document);
  std::filesystem::remove("home/libraries/nbrlib3.js");
  std::filesystem::create_directory("menu1.js");  // in the way of the script
  const auto [status, out, err] = compileTo("menu1.js");
  EXPECT_EQ(status, 1);
  EXPECT_THAT(err, HasSubstr("nbrc: home/libraries/nbrlib3.js: No such file or directory\n"));
  EXPECT_THAT(err, HasSubstr(fault("gone.gif", "there is no such picture (used by I1)")));
  EXPECT_THAT(err, HasSubstr("nbrc: ./menu1.js: Is a directory\n"));
  EXPECT_THAT(out, HasSubstr("./nbrData-menu1/nbrlib4.js\n"));
  EXPECT_THAT(out, Not(HasSubstr("/menu1.js\n")));

  write("bare.nbr", "nbr200\r\n");
  EXPECT_EQ(run({"compile", "bare.nbr", "--to", "bare.js"}).err,
            fault("bare.nbr", "There is no main menu to compile."));
}

TEST_F(OutputCommands, PreviewPrintsItsPage) {
  const auto [status, out, err] = run({"preview", "m.nbr", "--home", "home"});
  EXPECT_EQ(status, 0);
  EXPECT_EQ(out, "home/preview/preview.html\n");
  EXPECT_EQ(err, "");
  EXPECT_THAT(read("home/preview/preview.html"), HasSubstr("../preview-back.jpg"));
  EXPECT_THAT(read("home/preview/preview.js"), HasSubstr("\r\nvar nbrprp=' ';\r\n"));

  EXPECT_EQ(run({"preview", "m.nbr", "--home", "nowhere"}).status, 1);
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
  const auto [status, out, err] =
      run({"link", "menu1.js", "a.html", "pages/b c.html", "--alt-url", "x.html"});
  EXPECT_EQ(status, 0);
  EXPECT_EQ(out + err, "");
  EXPECT_THAT(read("a.html"), HasSubstr("<script src='menu1.js' "));
  EXPECT_THAT(read("a.html"), HasSubstr("nbrAltUrl='x.html';"));
  EXPECT_THAT(read("pages/b c.html"), HasSubstr("<script src='../menu1.js' "));
  EXPECT_THAT(read("pages/b c.html"),
              HasSubstr("<img name='nbrMenuPathImg-menu1' id='nbrMenuPathImg-menu1' "));
}

TEST_F(LinkCommand, GoesOnPastPagesThatFail) {
  const auto page = read("a.html");
  std::filesystem::permissions("a.html", std::filesystem::perms::owner_read);
  const auto [status, out, err] = run({"link", "menu1.js", "gone.html", "a.html", "pages/b c.html"});
  EXPECT_EQ(status, 1);
  EXPECT_EQ(err, fault("gone.html", "No such file or directory") + fault("a.html", "is read-only"));
  EXPECT_EQ(read("a.html"), page);
  EXPECT_FALSE(std::filesystem::exists("gone.html"));
  EXPECT_THAT(read("pages/b c.html"), HasSubstr("nbrBuildMenu();"));
}

TEST_F(LinkCommand, RefusesACompiledFileThatIsTooOld) {
  const auto page = read("a.html");
  for (const char* head : {"// ver 1.3-#399---\r\n", "var foreign;\r\n", ""}) {
    write("old.js", head);
    const auto [status, out, err] = run({"link", "old.js", "a.html"});
    EXPECT_EQ(status, 1);
    EXPECT_EQ(err, fault("old.js",
                         "This menu has been compiled with an older version of Nimbrel. You need to "
                         "re-compile it before linking it to web pages."));
  }
  EXPECT_EQ(read("a.html"), page);
  write("old.js", "// ver 1.3-#400---\r\n");
  EXPECT_EQ(run({"link", "old.js", "a.html"}).status, 0);
}

TEST_F(LinkCommand, ShowsItsProgressOnATerminalAlone) {
  const auto err = runOn(files, {"link", "menu1.js", "a.html", "pages/b c.html"}, true).err;
  EXPECT_THAT(err, HasSubstr("[####################....................] 50 %"));
  EXPECT_THAT(err, HasSubstr(" 100 %"));
  EXPECT_TRUE(err.ends_with("\r")) << "and leaves an empty line";
}

}  // namespace
}  // namespace nimbrel
