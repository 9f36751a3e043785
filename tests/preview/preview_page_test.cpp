#include "preview/preview_page.h"

#include <gmock/gmock.h>

#include "model/structure.h"
#include "platform/memory/memory_file_system.h"
#include "platform/posix/host_file_system.h"
#include "platform/posix/host_paths.h"

namespace nimbrel {
namespace {

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
  MenuObj& menu() { return *document.get<MenuObj>(*document.tvTreeView.root()); }

  MemoryFileSystem files;
  Document document;
  StepReport report;
};

std::string golden(const std::string& name) {
  return HostFileSystem().read(fromHostPath(NIMBREL_TEST_DATA "/golden/preview/" + name));
}

TEST_F(PreviewPage, ExplainsHowToOpenAPopup) {
  EXPECT_EQ(previewPagePath("C:\\program"), "C:\\program\\preview\\preview.html");
  EXPECT_EQ(page(), golden("plain.html"));
  menu().Collapsable = 1;
  EXPECT_EQ(page(), golden("popup.html"));
  EXPECT_EQ(page(true), golden("dark-popup.html"));
  menu().Collapsable = 2;
  EXPECT_EQ(page(), golden("plain.html"));
  document = {};
  page();
  EXPECT_EQ(report.findings.back().reason, "there is no menu to show");
}

TEST_F(PreviewPage, MakesOneScriptWithTheFolderOfTheLastCompile) {
  AddSubmenu(document, "I1");
  document.settings.nbrSubmenusFrame = "content";
  document.settings.nbrLibraryPath = "custom";
  document.settings.CompiledPath = "C:\\site";
  page();
  for (const auto* part : {"\r\nvar nbrLibraryPath='/nbrData';\r\n", "\r\nvar nbrSubmenusFrame='';\r\n",
                           "\r\nvar nbrprp='C:\\\\site';\r\n", "it.addSubmenu("}) {
    EXPECT_THAT(files.files["C:\\program\\preview\\preview.js"], testing::HasSubstr(part));
  }
}

TEST_F(PreviewPage, RemovesOnlyWhatAPreviewMade) {
  page();
  const auto made = files.files.size();
  files.files["C:\\program\\preview\\mine.html"] = "mine";
  files.files["C:\\program\\preview\\nbrData\\mine.gif"] = "mine";
  files.files["C:\\pictures\\a.gif"] = "GIF";
  files.files["C:\\program\\preview\\preview-files.txt"] += "..\\dot.gif\n";
  menu().TitleImage = "C:\\pictures\\a.gif";
  page();
  EXPECT_EQ(files.files.size(), made + 4);
  EXPECT_TRUE(files.isFile("C:\\program\\preview\\nbrData\\a.gif"));
  menu().TitleImage = "";
  page();
  EXPECT_EQ(files.files.size(), made + 3);
  RemovePreviewPage(files, "C:\\program", report);
  EXPECT_EQ(files.files.size(), made);
  EXPECT_THAT(files.filesIn("C:\\program\\preview"), testing::ElementsAre("mine.html", "preview-files.txt"));
  EXPECT_TRUE(files.isFile("C:\\program\\dot.gif"));
}

}  // namespace
}  // namespace nimbrel
