#include "shell/main_window.h"

#include <gmock/gmock.h>

#include "support/scripted_ports.h"

namespace nimbrel {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Pair;
using testing::UnorderedElementsAre;

class MainWindow : public testing::Test {
 protected:
  void set(const char* key, const char* value) { system.settings.SaveSetting("Settings", key, value); }
  std::string get(const char* section, const char* key) const {
    return system.settings.GetSetting(section, key, "none");
  }
  frmMain& start(const char* commandLine = "") {
    window = std::make_unique<frmMain>(system.ports, "C:\\p");
    window->Activate(commandLine);
    return *window;
  }
  frmMain& startQuietly(const char* commandLine = "") {
    set("Show Tips at Startup", "False");
    set("ShowPreviewOnStartup", "0");
    return start(commandLine);
  }
  std::string caption(std::string_view entry) { return window->commands.entry(entry).caption; }

  ScriptedPorts system;
  std::unique_ptr<frmMain> window;
};

TEST_F(MainWindow, FirstStartShowsATipThenThePreview) {
  bool previewCameFirst = true;
  system.asker.inForm = [&](Form& form) {
    previewCameFirst = window->browser.isPreviewWindowLoaded;
    form.Close();
  };
  auto& main = start();
  EXPECT_THAT(system.asker.forms, ElementsAre("frmTip"));
  EXPECT_FALSE(previewCameFirst);
  EXPECT_TRUE(main.browser.isOpen);
}

TEST_F(MainWindow, BothSpellingsTurnStartWindowsOff) {
  auto& main = startQuietly();
  EXPECT_THAT(system.asker.forms, IsEmpty());
  EXPECT_FALSE(main.browser.isOpen);
  EXPECT_FALSE(main.commands.entry("mnuToolsShowTipOnStartup").checked);
  main.run("mnuToolsShowTipOnStartup");
  EXPECT_EQ(get("Settings", "Show Tips at Startup"), "True");
  system.asker.inForm = [](Form& form) { form.check(*form.find("chkLoadTipsAtStartup"), false); };
  main.run("mnuHelpTipOfTheDay");
  EXPECT_EQ(get("Settings", "Show Tips at Startup"), "0");
  EXPECT_FALSE(main.commands.entry("mnuToolsShowTipOnStartup").checked);
}

TEST_F(MainWindow, AMissingTipFileGivesAdviceAndAnEmptyOneNothing) {
  auto& main = startQuietly();
  std::vector<std::string> tips;
  system.asker.inForm = [&](Form& form) { tips.push_back(form.find("lblTipText")->text); };
  main.run("mnuHelpTipOfTheDay");
  for (const auto* text : {"", "the only one\r\n"}) {
    system.files.files["C:\\p\\TIPOFDAY.TXT"] = text;
    main.run("mnuHelpTipOfTheDay");
  }
  EXPECT_THAT(tips, ElementsAre(HasSubstr("That the TIPOFDAY.TXT file was not found? \r\n\r\nCreate"), "",
                                "the only one"));
}

TEST_F(MainWindow, RegistersBothFileTypes) {
  const frmMain main(system.ports, "C:\\p");
  EXPECT_THAT(system.classes,
              UnorderedElementsAre(Pair(".nbs", "Nimbrel.Style"), Pair("Nimbrel.Style", "Nimbrel Menu Style"),
                                   Pair("Nimbrel.Style\\shell\\open\\command", "C:\\p\\Nimbrel.exe"),
                                   Pair("Nimbrel.Style\\DefaultIcon", "C:\\p\\Nimbrel.exe,2"),
                                   Pair(".nbr", "Nimbrel.Document"), Pair("Nimbrel.Document", "Nimbrel Menu"),
                                   Pair("Nimbrel.Document\\shell\\open\\command", "C:\\p\\Nimbrel.exe %1"),
                                   Pair("Nimbrel.Document\\DefaultIcon", "C:\\p\\Nimbrel.exe,1")));
}

TEST_F(MainWindow, OpensTheFileNamedByTheWholeCommandLine) {
  system.files.folders.insert("C:\\my menus");
  SaveMenuFile(system.files, "C:\\my menus\\a b.nbr", startQuietly().document);
  auto& main = startQuietly("  C:\\my menus\\a b.nbr ");
  EXPECT_EQ(main.title, "Nimbrel ver 2.0 - C:\\my menus\\a b.nbr");  // Quirk: the whole path
  EXPECT_EQ(main.state.FilePath, "C:\\my menus");
  EXPECT_EQ(caption("mnuFileMRU1"), "1. C:\\my menus\\a b.nbr");
  EXPECT_EQ(startQuietly("\"C:\\my menus\\a b.nbr\"").title, "Nimbrel ver 2.0 - Untitled");
}

TEST_F(MainWindow, TwoProgramsOnOneFileLoseNothingUnasked) {
  system.files.folders.insert("C:\\w");
  const auto* path = "C:\\w\\a.nbr";
  SaveMenuFile(system.files, path, startQuietly().document);
  auto& main = startQuietly(path);
  main.SelectNode(main.document.tvTreeView.find("I2"));
  frmMain other(system.ports, "C:\\p");
  other.Activate(path);
  other.run("mnuItemAddItem");
  other.run("mnuFileSave");
  const auto written = system.files.files[path];

  system.asker.answers = {BoxButton::Cancel};
  main.offerReload();
  main.offerReload();  // not asked again
  main.run("mnuItemAddItem");
  system.asker.answers = {BoxButton::Cancel};
  main.run("mnuFileSave");
  EXPECT_EQ(system.files.files[path], written);
  EXPECT_TRUE(main.state.IsDirty);
  main.offerReload();  // not while something is unsaved

  main.run("mnuEditUndo");
  other.run("mnuItemAddItem");
  other.run("mnuFileSave");
  main.SelectNode(main.document.tvTreeView.find("I2"));
  system.asker.answers = {BoxButton::Reload};
  main.offerReload();
  EXPECT_EQ(main.selected()->Key, "I2");
  EXPECT_EQ(main.document, other.document);
}

TEST_F(MainWindow, RecentFilesKeepTheirPlaceAndLongCaptionsAreCut) {
  auto& main = startQuietly();
  for (const auto* name : {"5", "4", "3", "2", "1"}) main.UpdateMRUList("C:", name);
  main.UpdateMRUList("C:", "3");
  EXPECT_EQ(caption("mnuFileMRU1"), "1. C:\\1");
  EXPECT_EQ(caption("mnuFileMRU4"), "4. C:\\4");
  const std::string folder = "C:\\" + std::string(36, 'f');
  main.UpdateMRUList(folder, "a");
  EXPECT_EQ(caption("mnuFileMRU1"), "1. " + folder + "\\a");
  main.UpdateMRUList(folder, "ab");
  EXPECT_EQ(caption("mnuFileMRU1"), "1. ..." + (folder + "\\ab").substr(1));
}

TEST_F(MainWindow, ClosingStoresItsPlaceAndCancelUndoesNothing) {
  auto& main = startQuietly();
  main.run("mnuToolsPreview");
  main.geometry = {1, 2.5, 7000, 8000};
  main.run("mnuItemAddItem");
  system.asker.answers = {BoxButton::Cancel, BoxButton::No};
  EXPECT_FALSE(main.QueryClose());
  EXPECT_FALSE(main.browser.isOpen || main.browser.isPreviewWindowLoaded);
  EXPECT_EQ(get("Settings2", "MainTop"), "2.5");
  main.isMinimised = true;
  main.geometry.top = 99;
  EXPECT_TRUE(main.QueryClose());
  EXPECT_EQ(get("Settings2", "MainTop"), "2.5");
}

TEST_F(MainWindow, IsNeverNarrowerThan3000Twips) {
  auto& main = startQuietly();
  Geometry narrow{.width = 2000};
  EXPECT_FALSE(main.Form_Resize(narrow, true));
  EXPECT_TRUE(main.Form_Resize(narrow, false));
  EXPECT_EQ(narrow.width, 3000);
}

TEST_F(MainWindow, EachKindOfNodeHasItsContextMenu) {
  auto& main = startQuietly();
  EXPECT_EQ(main.contextMenu(), "mnuMenuPopup");
  main.run("mnuItemAddItem");
  EXPECT_EQ(main.contextMenu(), "mnuItemPopup");
  main.run("mnuSubmenuAddSubmenu");
  EXPECT_EQ(main.contextMenu(), "mnuSubmenuPopup");
}

}  // namespace
}  // namespace nimbrel
