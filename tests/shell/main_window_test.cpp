#include "shell/main_window.h"

#include <gmock/gmock.h>

#include "platform/keys.h"
#include "support/scripted_ports.h"
#include "text/product.h"

namespace nimbrel {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

/// Keeps what is registered, in order.
struct Registered : ClassesRoot {
  void CreateClassKey(std::string_view key) override { lines.emplace_back(key); }
  void SetClassValue(std::string_view key, std::string_view valueName, std::string_view value) override {
    lines.push_back(std::string(key) + " " + std::string(valueName) + "= " + std::string(value));
  }
  std::vector<std::string> lines;
};

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
  std::string caption(EntryName entry) { return window->commands.entry(entry).caption; }

  ScriptedPorts system;
  std::unique_ptr<frmMain> window;
};

TEST_F(MainWindow, FirstStartShowsATipThenThePreview) {
  bool previewCameFirst = true;
  system.asker.inForm = [&](Form& form) {
    previewCameFirst = window->state.isPreviewWindowLoaded;
    form.Close();
  };
  auto& main = start();
  EXPECT_THAT(system.asker.forms, ElementsAre("frmTip"));
  EXPECT_FALSE(previewCameFirst);
  EXPECT_TRUE(main.browser.isOpen);
  EXPECT_EQ(main.title, "Nimbrel ver 2.0 - Untitled");
  EXPECT_EQ(main.geometry.left, 1000);
  EXPECT_EQ(main.geometry.width, 6500);
  EXPECT_FALSE(main.canRun("mnuFileMRU1"));
  EXPECT_TRUE(main.canRun("mnuHelpOnlineSupportCenter"));
  for (const auto* off :
       {"mnuEditCut", "mnuEditCopy", "mnuEditPaste", "mnuItemDeleteItem", "mnuItemMoveItemUp",
        "mnuItemMoveItemDown", "mnuSubmenuAddSubmenu", "mnuSubmenuDeleteSubmenu"}) {
    EXPECT_FALSE(main.canRun(off)) << off;
  }
}

TEST_F(MainWindow, BothSpellingsTurnStartWindowsOff) {
  auto& main = startQuietly();
  EXPECT_THAT(system.asker.forms, IsEmpty());
  EXPECT_FALSE(main.browser.isOpen);
  EXPECT_FALSE(main.commands.entry("mnuToolsShowTipOnStartup").checked);
  main.run("mnuToolsShowTipOnStartup");
  EXPECT_EQ(get("Settings", "Show Tips at Startup"), "True");
  system.files.files["C:\\p\\TIPOFDAY.TXT"] = "that one\r\n";
  system.asker.inForm = [](Form& form) {
    EXPECT_EQ(form.find("lblTipText")->text, "that one");
    form.check(*form.find("chkLoadTipsAtStartup"), false);
  };
  main.run("mnuHelpTipOfTheDay");
  EXPECT_EQ(get("Settings", "Show Tips at Startup"), "0");
  EXPECT_FALSE(main.commands.entry("mnuToolsShowTipOnStartup").checked);
}

TEST_F(MainWindow, AMissingTipFileGivesAdviceAndAnEmptyOneNothing) {
  auto& main = startQuietly();
  std::string tip;
  system.asker.inForm = [&](Form& form) { tip = form.find("lblTipText")->text; };
  main.run("mnuHelpTipOfTheDay");
  EXPECT_THAT(tip, HasSubstr("That the TIPOFDAY.TXT file was not found? \r\n\r\nCreate"));
  system.files.files["C:\\p\\TIPOFDAY.TXT"] = "";
  main.run("mnuHelpTipOfTheDay");
  EXPECT_EQ(tip, "");
}

TEST_F(MainWindow, RegistersBothFileTypesKeysFirst) {
  Registered registered;
  Ports ports{system.files, system.asker, system.settings,   system, system,
              registered,   {},           [] { return 0.0; }};
  const frmMain main(ports, "C:\\p");
  EXPECT_THAT(
      registered.lines,
      ElementsAre(".nbs", ".nbs = Nimbrel.Style", "Nimbrel.Style", "Nimbrel.Style = Nimbrel Menu Style",
                  "Nimbrel.Style\\shell\\open\\command",
                  "Nimbrel.Style\\shell\\open\\command = C:\\p\\Nimbrel.exe", "Nimbrel.Style\\DefaultIcon",
                  "Nimbrel.Style\\DefaultIcon = C:\\p\\Nimbrel.exe,2", ".nbr", ".nbr = Nimbrel.Document",
                  "Nimbrel.Document", "Nimbrel.Document = Nimbrel Menu",
                  "Nimbrel.Document\\shell\\open\\command",
                  "Nimbrel.Document\\shell\\open\\command = C:\\p\\Nimbrel.exe %1",
                  "Nimbrel.Document\\DefaultIcon", "Nimbrel.Document\\DefaultIcon = C:\\p\\Nimbrel.exe,1"));
}

TEST_F(MainWindow, OpensTheWholeRestOfTheCommandLine) {
  system.files.folders.insert("C:\\my menus");
  SaveMenuFile(system.files, "C:\\my menus\\a b.nbr", startQuietly().document);
  auto& main = startQuietly("  C:\\my menus\\a b.nbr ");
  EXPECT_EQ(main.title, "Nimbrel ver 2.0 - C:\\my menus\\a b.nbr");  // kept: the whole path
  EXPECT_EQ(main.state.FilePath, "C:\\my menus");
  EXPECT_EQ(caption("mnuFileMRU1"), "1. C:\\my menus\\a b.nbr");
  EXPECT_EQ(startQuietly("\"C:\\my menus\\a b.nbr\"").title, "Nimbrel ver 2.0 - Untitled");
}

TEST_F(MainWindow, RecentFilesKeepTheirPlaceAndTheirCaptionsAreCut) {
  auto& main = startQuietly();
  for (const auto* name : {"5", "4", "3", "2", "1"}) main.UpdateMRUList("C:", name);
  main.UpdateMRUList("C:", "3");
  EXPECT_EQ(caption("mnuFileMRU1"), "1. C:\\1");
  EXPECT_EQ(caption("mnuFileMRU4"), "4. C:\\4");
  EXPECT_EQ(get("Settings", "mru4fn"), "4");
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
  EXPECT_FALSE(main.browser.isOpen || main.state.isPreviewWindowLoaded);
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

TEST_F(MainWindow, TheTreesKeysSelectDeleteAndLeaveTheRootAlone) {
  auto& main = startQuietly();
  main.tvTreeView_KeyUp(keys::Delete);
  EXPECT_THAT(system.asker.boxes, IsEmpty());
  EXPECT_EQ(main.contextMenu(), "mnuMenuPopup");
  main.tvTreeView_NodeClick(main.document.tvTreeView.find("I3"));
  EXPECT_EQ(main.contextMenu(), "mnuItemPopup");
  system.asker.answers = {BoxButton::Yes};
  main.tvTreeView_KeyUp(keys::Delete);
  EXPECT_EQ(main.selected->Key, "I2");
  EXPECT_FALSE(main.canRun("mnuItemMoveItemDown"));
  EXPECT_TRUE(main.canRun("mnuItemMoveItemUp"));
}

TEST_F(MainWindow, AStyleThatIsAppliedStaysWhenTheOpenCellIsLeft) {
  auto& main = startQuietly();
  constexpr int backgroundRow = 18;
  set("DontShowPickDialog", "1");
  const auto item = [&](const char* key) {
    return main.document.get<ItemObj>(*main.document.tvTreeView.find(key));
  };
  item("I1")->BGColor1 = "#112233";
  main.tvTreeView_NodeClick(main.document.tvTreeView.find("I1"));
  main.run("mnuStylePickStyle");
  main.tvTreeView_NodeClick(main.document.tvTreeView.find("I2"));
  main.prctlItem.EnterCell(backgroundRow, column::Normal);
  main.run("mnuStyleApplyStyle");
  main.LeaveCells();
  EXPECT_EQ(item("I2")->BGColor1, "#112233");
}

}  // namespace
}  // namespace nimbrel
