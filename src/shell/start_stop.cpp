// How the program begins and ends.
#include <array>
#include <exception>

#include "platform/settings.h"
#include "shell/main_window.h"
#include "text/ascii.h"
#include "text/numbers.h"
#include "text/paths.h"
#include "text/product.h"

namespace nimbrel {
namespace {

struct ClassValue {
  std::string_view key;
  std::string_view value;
  std::string_view inProgramFolder;  ///< what follows the program's folder; the value is then empty
};

// kept: the style type's command takes no file, and the document type's stands without quotes, since the whole
// rest of the command line is taken as the file's name.
constexpr auto classValues = std::to_array<ClassValue>({
    {".nbs", "Nimbrel.Style", {}},
    {"Nimbrel.Style", "Nimbrel Menu Style", {}},
    {"Nimbrel.Style\\shell\\open\\command", {}, "\\Nimbrel.exe"},
    {"Nimbrel.Style\\DefaultIcon", {}, "\\Nimbrel.exe,2"},
    {".nbr", "Nimbrel.Document", {}},
    {"Nimbrel.Document", "Nimbrel Menu", {}},
    {"Nimbrel.Document\\shell\\open\\command", {}, "\\Nimbrel.exe %1"},
    {"Nimbrel.Document\\DefaultIcon", {}, "\\Nimbrel.exe,1"},
});

struct StoredGeometry {
  const Setting& setting;
  float Geometry::*field;
};

constexpr std::array storedGeometry{
    StoredGeometry{settings::MainLeft, &Geometry::left},
    StoredGeometry{settings::MainTop, &Geometry::top},
    StoredGeometry{settings::MainWidth, &Geometry::width},
    StoredGeometry{settings::MainHeight, &Geometry::height},
};

}  // namespace

void frmMain::RegisterFileAssociations() {
  for (const auto& entry : classValues) {
    ports.classes.CreateClassKey(entry.key);
    const auto value = entry.inProgramFolder.empty()
                           ? std::string(entry.value)
                           : state.programFolder + std::string(entry.inProgramFolder);
    ports.classes.SetClassValue(entry.key, "", value);
  }
}

void frmMain::readGeometry() {
  for (const auto& stored : storedGeometry) {
    const auto standard = parseSingle(stored.setting.standard).value_or(0);
    geometry.*stored.field = parseSingle(stored.setting.read(ports.settings)).value_or(standard);
  }
}

void frmMain::saveGeometry() {
  if (isMinimised) return;
  for (const auto& stored : storedGeometry) {
    stored.setting.write(ports.settings, generalForm(geometry.*stored.field));
  }
}

/// The whole of the command line is the name. One that names no file is dropped.
void frmMain::openCommandLine(std::string_view commandLine) {
  const std::string path(trimmed(commandLine));
  if (path.empty() || !ports.files.isFile(path)) return;
  state.FileTitle = fileName(path);
  state.FilePath = folderName(path);
  load();
  UpdateMRUList(state.FilePath, state.FileTitle);
  setTitle(path);  // kept: the document commands show the bare name
}

/// The tip comes ahead of the preview, and holds it up until it is closed.
void frmMain::Activate(std::string_view commandLine, StartWindows windows) {
  if (!FirstActivation_) return;
  FirstActivation_ = false;
  commands.entry("mnuHelpOnlineSupportCenter").visible = true;
  state.LastWebPageDir.clear();
  state.BlackPreview = false;
  mnuFileNew();
  try {
    openCommandLine(commandLine);
  } catch (const FileError& error) {
    ports.asker.noteFailure(error.finding());
    ports.asker.MsgBox({.title = std::string(productTitle),
                        .text = error.finding().path + ": " + error.finding().text(),
                        .icon = BoxIcon::Critical,
                        .paths = {error.finding().path}});
  }
  const bool showsWindows = windows == StartWindows::Wanted;
  if (settings::ShowTips.readFlag(ports.settings)) {
    if (showsWindows) mnuHelpTipOfTheDay();
  } else {
    commands.entry("mnuToolsShowTipOnStartup").checked = false;
  }
  UpdateMRUList("", "");
  if (settings::ShowPreview.readFlag(ports.settings)) {
    if (showsWindows) {
      CreatePreviewFile();
      browser.Show();
      browser.RefreshPreview();  // kept: the page is shown already
    }
  } else {
    commands.entry("mnuToolsShowPreviewOnStartup").checked = false;
  }
}

/// kept: a cancelled question undoes none of what came ahead of it.
bool frmMain::QueryClose() {
  LeaveCells();
  browser.isOpen = liveExamples.isOpen = false;
  saveGeometry();
  std::exception_ptr fault;
  bool mayClose = false;
  try {
    mayClose = PromptToSave();
  } catch (...) {
    fault =
        std::current_exception();  // a save that cannot write keeps the window, and is told behind the rest
  }
  state.isPreviewWindowLoaded = false;
  state.isLiveExamplesWindowLoaded = false;
  if (fault) std::rethrow_exception(fault);
  return mayClose;
}

}  // namespace nimbrel
