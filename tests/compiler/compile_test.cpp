#include "compiler/compile.h"

#include <filesystem>
#include <gmock/gmock.h>

#include "compiler/fixtures.h"
#include "persistence/menu_file.h"
#include "platform/memory/memory_file_system.h"
#include "platform/posix/host_file_system.h"
#include "platform/posix/host_paths.h"
#include "text/paths.h"

namespace nimbrel {
namespace {

using testing::ElementsAre;
using testing::EndsWith;
using testing::HasSubstr;
using testing::Pair;

/// A program's folder, the author's pictures, and a menu that is to be compiled to C:\site\menu1.js.
class CompileTest : public testing::Test {
 protected:
  CompileTest() {
    for (char n = '0'; n < '6'; ++n) {
      files.files[std::string("C:\\program\\libraries\\nbrlib") + n + ".js"] = std::string(1, n);
    }
    files.files["C:\\program\\dot.gif"] = "dot";
    files.files["C:\\pictures\\a.gif"] = gif(1, 1);
    files.folders = {"C:", "C:\\site"};
    get<ItemObj>(document, "I7").ItemImage1 = "C:\\pictures\\a.gif";
    document.settings.CompiledPath = "C:\\site";
    document.settings.CompiledName = "menu1.js";
  }

  void compile() { CompileMenu(files, "C:\\program", document, report); }

  /// What lies under C:\site.
  std::map<std::string, std::string> site() const {
    std::map<std::string, std::string> found;
    for (const auto& [path, bytes] : files.files) {
      if (path.starts_with("C:\\site\\")) found[path.substr(8)] = bytes;
    }
    return found;
  }

  MemoryFileSystem files;
  Document document = menuWithTwoSubmenus();
  StepReport report;
};

TEST_F(CompileTest, Layout) {
  files.files["C:\\site\\nbrData-menu1\\earlier.gif"] = "old picture";
  files.files["C:\\site\\menu1_sub.js"] = "of an earlier cross-frame compile";
  files.files["C:\\site\\menu1.js"] = std::string(100'000, 'x');
  compile();
  EXPECT_THAT(report.findings, ElementsAre());
  EXPECT_EQ(report.made.size(), 10U);
  const auto found = site();
  EXPECT_THAT(
      found,
      ElementsAre(Pair("menu1.js", EndsWith("\r\ns0.pm.buildMenu();\r\n}}\r\n")),
                  Pair("menu1_sub.js", "of an earlier cross-frame compile"),
                  Pair("nbrData-menu1\\a.gif", gif(1, 1)), Pair("nbrData-menu1\\dot.gif", "dot"),
                  Pair("nbrData-menu1\\earlier.gif", "old picture"), Pair("nbrData-menu1\\nbrlib0.js", "0"),
                  Pair("nbrData-menu1\\nbrlib1.js", "1"), Pair("nbrData-menu1\\nbrlib2.js", "2"),
                  Pair("nbrData-menu1\\nbrlib3.js", "3"), Pair("nbrData-menu1\\nbrlib4.js", "4"),
                  Pair("nbrData-menu1\\nbrlib5.js", "5"), Pair("nbrmenupath.gif", "dot")));
  compile();
  EXPECT_EQ(site(), found) << "a second compile makes the same bytes";
}

// kept: the one-pixel image goes with the libraries, never with the pictures.
TEST_F(CompileTest, CustomFolders) {
  document.settings.nbrLibraryPath = "lib";
  document.settings.nbrImagePath = "img";
  document.settings.nbrSubmenusFrame = "content";
  compile();
  EXPECT_TRUE(files.isFile("C:\\site\\lib\\dot.gif") && files.isFile("C:\\site\\lib\\nbrlib0.js"));
  EXPECT_THAT(files.filesIn("C:\\site\\img"), ElementsAre("a.gif"));
  EXPECT_FALSE(files.isFolder("C:\\site\\nbrData-menu1"));
}

// kept: the last three characters of the name go, whatever they are.
TEST_F(CompileTest, BaseNameIsCutBlindly) {
  for (const auto& [name, base] : {std::pair{"menu", "m"}, {".js", ""}, {"menu.html", "menu.h"}}) {
    document.settings.CompiledName = name;
    EXPECT_EQ(refusalOfCompiledName(name), nullptr);
    const auto layout = compileLayout(document.settings);
    EXPECT_EQ(layout.baseName, base);
    EXPECT_EQ(layout.libraryFolder, std::string("nbrData-") + base);
    EXPECT_EQ(layout.menuPath, std::string("C:\\site\\") + name);
    EXPECT_EQ(layout.submenusPath, std::string("C:\\site\\") + base + "_sub.js");
  }
}

TEST_F(CompileTest, Refusals) {
  EXPECT_EQ(refusalOfCompiledName("my menu.js")->title, "Menu name contains spaces");
  EXPECT_EQ(
      refusalOfCompiledName("my menu.js")->text,
      "The compiled menu name cannot contain spaces, as it will not work properly \rin Netscape browsers. "
      "Please remove the spaces from the name.");
  EXPECT_NE(refusalOfCompiledName("js"), nullptr);
  EXPECT_EQ(refusalOfCompile(document), nullptr);
  Document withoutMenu;
  EXPECT_NE(refusalOfCompile(withoutMenu), nullptr);
  withoutMenu.tvTreeView.addRoot("I1", "");
  withoutMenu.ElementColl.add("I1", ItemObj{});
  EXPECT_NE(refusalOfCompile(withoutMenu), nullptr);
}

TEST_F(CompileTest, ACrossFrameMenuWithoutSubmenusHasAnEmptySecondFile) {
  document.settings.nbrSubmenusFrame = "content";
  for (const char* key : {"S4", "S6"}) RemoveSubtree(document, key);
  compile();
  EXPECT_EQ(site()["menu1_sub.js"], "\r\n");
}

TEST_F(CompileTest, WhatIsMissingIsToldAndTheRestIsMade) {
  files.files.erase("C:\\program\\libraries\\nbrlib4.js");
  files.files.erase("C:\\program\\dot.gif");
  files.files["C:\\site\\nbrData-menu1\\nbrlib4.js"] = "old";
  document.settings.nbrImagePath = "no\\such\\folder";
  compile();
  std::vector<std::string> paths;
  for (const auto& finding : report.findings) paths.push_back(finding.path);
  EXPECT_THAT(paths, ElementsAre("C:\\site\\no\\such\\folder", "C:\\program\\libraries\\nbrlib4.js",
                                 "C:\\program\\dot.gif", "C:\\site\\no\\such\\folder\\a.gif"));
  EXPECT_EQ(site()["nbrData-menu1\\nbrlib4.js"], "old");
  EXPECT_EQ(site()["nbrData-menu1\\nbrlib5.js"], "5");
  EXPECT_THAT(site()["menu1.js"], HasSubstr("nbrImagesColl=['a.gif',1,1];"));
}

TEST_F(CompileTest, ADiskThatFailsOnceCostsOneFileAtMostAndNoOldOne) {
  document.settings.nbrSubmenusFrame = "content";
  const auto before = files;
  compile();
  const auto whole = site();
  for (int call = 0;; ++call) {
    files = before;
    for (const auto& [name, bytes] : whole) files.files["C:\\site\\" + name] = "old";
    report = {};
    int made = 0;
    files.failsNow = [&] { return made++ == call; };
    compile();
    if (made <= call) break;
    EXPECT_EQ(report.findings.size(), 1U) << call;
    int old = 0;
    for (const auto& [name, bytes] : site()) {
      old += bytes == "old" ? 1 : 0;
      EXPECT_TRUE(bytes == "old" || bytes == whole.at(name)) << name;
    }
    EXPECT_EQ(old, call < 2 ? 0 : 1) << "call " << call << "; the first two make folders";
  }
}

/// Each folder under golden/scripts is a case: a menu file, the pictures that lie beside it, and the scripts
/// that its own settings make.
TEST(CompileGolden, Scripts) {
  const HostFileSystem host;
  const auto cases = fromHostPath(NIMBREL_TEST_DATA "/../golden/scripts");
  int walked = 0;
  for (const auto& entry : std::filesystem::directory_iterator(toHostPath(cases))) {
    const auto folder = joinPath(cases, entry.path().filename().string());
    MemoryFileSystem files;
    std::map<std::string, std::string> expected;
    for (const auto& name : host.filesIn(folder)) {
      (name.ends_with(".js") ? expected[name] : files.files["C:\\menus\\" + name]) =
          host.read(joinPath(folder, name));
    }
    Document document;
    SubmenuCarryOver carryOver;
    Findings notes;
    LoadMenuFile(files, "C:\\menus", "menu.nbr", carryOver, document, notes);
    const auto path = document.settings.CompiledPath;
    files.folders = {path};
    StepReport report;
    CompileMenu(files, "C:\\program", document, report);
    std::map<std::string, std::string> made;
    for (const auto& name : files.filesIn(path)) {
      if (name.ends_with(".js")) made[name] = files.read(joinPath(path, name));
    }
    EXPECT_EQ(made, expected) << folder;
    ++walked;
  }
  EXPECT_GE(walked, 3);
}

}  // namespace
}  // namespace nimbrel
