#include "preview/preview_page.h"

#include <gmock/gmock.h>

#include "model/structure.h"
#include "platform/memory/memory_file_system.h"
#include "platform/posix/host_file_system.h"
#include "platform/posix/host_paths.h"

namespace nimbrel {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

class PreviewPage : public testing::Test {
 protected:
  PreviewPage() {
    files.files = {{"C:\\program\\dot.gif", "dot"}, {"C:\\program\\libraries\\nbrlib1.js", "library"}};
    files.folders = {"C:", "C:\\program"};
    BuildDefaultDocument(document);
  }

  std::string page(bool dark = false) {
    CreatePreviewFile(files, "C:\\program", dark, document, report);
    return files.files[previewPagePath("C:\\program")];
  }
  std::string script() { return files.files["C:\\program\\preview\\preview.js"]; }
  MenuObj& menu() { return *document.get<MenuObj>(*document.tvTreeView.root()); }

  MemoryFileSystem files;
  Document document;
  StepReport report;
};

std::string golden(const std::string& name) {
  return HostFileSystem().read(fromHostPath(NIMBREL_TEST_DATA "/../golden/preview/" + name));
}

TEST_F(PreviewPage, Page) {
  EXPECT_EQ(previewPagePath("C:\\program"), "C:\\program\\preview\\preview.html");
  EXPECT_EQ(page(), golden("plain.html"));
  menu().Collapsable = 1;
  EXPECT_EQ(page(), golden("popup.html"));
  EXPECT_EQ(page(true), golden("dark-popup.html"));
  menu().Collapsable = 2;
  EXPECT_EQ(page(), golden("plain.html"));
}

TEST_F(PreviewPage, ScriptIsOfOneFileAndTellsTheLastCompile) {
  AddSubmenu(document, "I1");
  document.settings.nbrSubmenusFrame = "content";
  document.settings.nbrLibraryPath = "custom";
  document.settings.CompiledPath = "C:\\site";
  page();
  EXPECT_THAT(script(), HasSubstr("\r\nvar nbrMenuName='preview';\r\nvar nbrLibraryPath='/nbrData';\r\n"
                                  "var nbrImagesPath='/nbrData';\r\n"));
  EXPECT_THAT(script(), HasSubstr("\r\nvar nbrSubmenusFrame='';\r\n"));
  EXPECT_THAT(script(), HasSubstr("\r\nvar nbrprp='C:\\\\site';\r\n"));
  EXPECT_THAT(script(), HasSubstr("it.addSubmenu("));
  EXPECT_TRUE(script().ends_with("\r\n}}\r\n"));
}

TEST_F(PreviewPage, ReplacesAllOfThePreviewAndNothingElse) {
  files.files["C:\\program\\preview\\nbrData\\old.gif"] = "old";
  files.files["C:\\program\\preview\\old.html"] = "old";
  files.files["C:\\program\\preview\\nbrData\\deeper\\mine.gif"] = "mine";
  files.files["C:\\pictures\\a.gif"] = "GIF";
  menu().TitleImage = "C:\\pictures\\a.gif";
  const Document before = document;
  page();
  std::vector<std::string> names;
  for (const auto& entry : files.files) names.push_back(entry.first);
  EXPECT_THAT(
      names,
      ElementsAre("C:\\pictures\\a.gif", "C:\\program\\dot.gif", "C:\\program\\libraries\\nbrlib1.js",
                  "C:\\program\\preview\\nbrData\\a.gif", "C:\\program\\preview\\nbrData\\deeper\\mine.gif",
                  "C:\\program\\preview\\nbrData\\dot.gif", "C:\\program\\preview\\nbrData\\nbrlib1.js",
                  "C:\\program\\preview\\nbrmenupath.gif", "C:\\program\\preview\\preview.html",
                  "C:\\program\\preview\\preview.js"));
  EXPECT_EQ(document, before) << "the document has not changed";
}

TEST_F(PreviewPage, GoesOnWhereTheDiskFails) {
  const auto whole = page();
  const auto all = files.files;
  for (int call = 0;; ++call) {
    report = {};
    int made = 0;
    files.failsNow = [&] { return made++ == call; };
    const auto found = page();
    if (made <= call) break;
    std::size_t missingLibraries = 5;  // the program's folder holds one
    EXPECT_EQ(report.findings.size(), missingLibraries + 1) << call;
    EXPECT_GE(files.files.size() + 1, all.size()) << call;
    EXPECT_THAT(found, testing::AnyOf(whole, ""));
    files.files = all;
  }
}

}  // namespace
}  // namespace nimbrel
