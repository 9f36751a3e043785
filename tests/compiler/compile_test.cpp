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
using testing::HasSubstr;

/// A menu with one picture, to be compiled to C:\site\menu1.js.
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

  /// The files below C:\site.
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

TEST_F(CompileTest, ReplacesItsOwnFilesOnly) {
  files.files["C:\\site\\nbrData-menu1\\earlier.gif"] = "old picture";
  files.files["C:\\site\\menu1_sub.js"] = "of an earlier cross-frame compile";
  files.files["C:\\site\\menu1.js"] = std::string(100'000, 'x');
  compile();
  EXPECT_EQ(report.made.size(), 10U);
  const auto found = site();
  EXPECT_EQ(found.at("nbrData-menu1\\earlier.gif"), "old picture");
  EXPECT_EQ(found.at("menu1_sub.js"), "of an earlier cross-frame compile");
}

TEST_F(CompileTest, UsesCustomFolders) {
  document.settings.nbrLibraryPath = "lib";
  document.settings.nbrImagePath = "img";
  document.settings.nbrSubmenusFrame = "content";
  for (const char* key : {"S4", "S6"}) RemoveSubtree(document, key);
  get<ItemObj>(document, "I1").ItemImage1 = "C:\\pictures\\a.gif";
  compile();
  // Quirk: the one-pixel image goes to the libraries.
  EXPECT_TRUE(files.isFile("C:\\site\\lib\\dot.gif") && files.isFile("C:\\site\\lib\\nbrlib0.js"));
  EXPECT_THAT(files.filesIn("C:\\site\\img"), ElementsAre("a.gif"));
  EXPECT_FALSE(files.isFolder("C:\\site\\nbrData-menu1"));
  EXPECT_EQ(site()["menu1_sub.js"], "\r\n") << "no submenus: an empty second file";
}

// Quirk: the last three characters are removed, whatever they are.
TEST_F(CompileTest, RemovesThreeCharactersForTheBaseName) {
  for (const auto& [name, base] : {std::pair{"menu", "m"}, {".js", ""}, {"menu.html", "menu.h"}}) {
    document.settings.CompiledName = name;
    EXPECT_EQ(refusalOfCompiledName(name), nullptr);
    const auto layout = compileLayout(document.settings);
    EXPECT_EQ(layout.libraryFolder, std::string("nbrData-") + base);
    EXPECT_EQ(layout.submenusPath, std::string("C:\\site\\") + base + "_sub.js");
  }
}

TEST_F(CompileTest, IsRefusedWithoutAMainMenu) {
  EXPECT_EQ(refusalOfCompile(document), nullptr);
  Document item;
  item.tvTreeView.addRoot("I1", "");
  item.ElementColl.add("I1", ItemObj{});
  EXPECT_NE(refusalOfCompile(item), nullptr);
}

TEST_F(CompileTest, OneDiskFailureLosesAtMostOneNewFileAndNoOldOne) {
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
    EXPECT_EQ(old, call < 2 ? 0 : 1) << "call " << call << "; the first two create folders";
  }
}

/// Each folder in golden/scripts is a case: a menu file, its pictures, and the scripts that it compiles to.
TEST(CompileGolden, Scripts) {
  const HostFileSystem host;
  int cases = 0;
  for (const auto& folder : std::filesystem::directory_iterator(NIMBREL_TEST_DATA "/golden/scripts")) {
    SCOPED_TRACE(folder.path().filename());
    ++cases;
    const auto source = fromHostPath(folder.path().string());
    MemoryFileSystem files;
    std::map<std::string, std::string> expected;
    for (const auto& file : host.filesIn(source)) {
      (file.ends_with(".js") ? expected[file] : files.files["C:\\menus\\" + file]) =
          host.read(joinPath(source, file));
    }
    Document document;
    SubmenuCarryOver carryOver;
    StepReport report;
    ReadNotes notes;
    LoadMenuFile(files, "C:\\menus", "menu.nbr", carryOver, document, notes);
    const auto path = document.settings.CompiledPath;
    files.folders = {path};
    CompileMenu(files, "C:\\program", document, report);
    for (const auto& [file, script] : expected) EXPECT_EQ(files.read(joinPath(path, file)), script);
  }
  EXPECT_GE(cases, 5);
}

}  // namespace
}  // namespace nimbrel
