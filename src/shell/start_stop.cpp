// The start and the end of the program.
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
  std::string_view inProgramFolder;  ///< if not empty, the value is the program folder with this appended
};

// Quirk: the command for styles has no argument, and that for documents has no quotes, because the program takes its
// whole command line as the name of the file.
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

/// The whole command line is the name. Ignored if there is no such file.
void frmMain::openCommandLine(std::string_view commandLine) {
  const std::string path(trimmed(commandLine));
  if (path.empty() || !ports.files.isFile(path)) return;
  state.FileTitle = fileName(path);
  state.FilePath = folderName(path);
  if (!load()) return;
  UpdateMRUList(state.FilePath, state.FileTitle);
  setTitle(path);  // Quirk: the document commands set the name without the folder
}

/// The preview opens after the tip is closed.
void frmMain::Activate(std::string_view commandLine, StartWindows windows) {
  if (!FirstActivation_) return;
  FirstActivation_ = false;
  commands.entry("mnuHelpOnlineSupportCenter").visible = true;
  state.LastWebPageDir.clear();
  browser.BlackPreview = false;
  mnuFileNew();
  openCommandLine(commandLine);
  offerRecovery();
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
      browser.RefreshPreview();  // Quirk: the page is open already
    }
  } else {
    commands.entry("mnuToolsShowPreviewOnStartup").checked = false;
  }
}

/// Quirk: when the author cancels, the closed windows stay closed.
bool frmMain::QueryClose() {
  LeaveCells();
  browser.isOpen = liveExamples.isOpen = false;
  saveGeometry();
  std::exception_ptr fault;
  bool mayClose = false;
  try {
    mayClose = PromptToSave();
  } catch (...) {
    fault = std::current_exception();  // the rest must be done even if the save fails
  }
  browser.isPreviewWindowLoaded = false;
  liveExamples.isLiveExamplesWindowLoaded = false;
  if (fault) std::rethrow_exception(fault);
  if (mayClose && recovery_) recovery_->discard();
  return mayClose;
}

}  // namespace nimbrel
