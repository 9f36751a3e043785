// New, Open and Save, and the question before changes are lost.
#include <array>

#include "model/structure.h"
#include "platform/settings.h"
#include "shell/main_window.h"
#include "text/paths.h"
#include "text/product.h"

namespace nimbrel {
namespace {

constexpr std::array<EntryName, std::tuple_size_v<RecentFiles>> recentFileEntries{
    "mnuFileMRU1", "mnuFileMRU2", "mnuFileMRU3", "mnuFileMRU4"};

std::string filter() { return std::string(productTitle) + " Files (*.nbr)|*.nbr"; }

MessageBox fileNotFound() {
  return {.title = "File Not Found", .text = "The file you specified cannot be found"};
}

}  // namespace

bool frmMain::PromptToSave() {
  if (!state.IsDirty) return true;
  const auto answer = ports.asker.MsgBox(
      {.title = std::string(productTitle),
       .text = "Do you want to save the changes you made to the menu you are currently editing?",
       .buttons = {BoxButton::Yes, BoxButton::No, BoxButton::Cancel},
       .defaultButton = BoxButton::Yes});
  if (answer == BoxButton::Cancel) return false;
  if (answer == BoxButton::Yes) mnuFileSave();
  return answer == BoxButton::No || !state.IsDirty;
}

void frmMain::outdatePreview() {
  if (state.isPreviewWindowLoaded) browser.SetOutdated();
}

/// Quirk: the setting for shared borders is taken over from the previous document.
void frmMain::mnuFileNew() {
  LeaveCells();
  if (!PromptToSave()) return;
  state.FilePath.clear();
  state.FileTitle.clear();
  select(nullptr);
  BuildDefaultDocument(document);
  SelectNode(document.tvTreeView.root());
  state.IsDirty = false;
  CompileSettings settings;
  settings.nbrFrontPageSupport = document.settings.nbrFrontPageSupport;
  document.settings = settings;
  isPartlyRead_ = false;
  ownFile_.clear();
  setTitle("Untitled");
  outdatePreview();
}

void frmMain::splitPath(const std::string& path) {
  state.FileTitle = fileName(path);
  state.FilePath = folderName(path);
}

void frmMain::mnuFileOpen() {
  LeaveCells();
  if (!PromptToSave()) return;
  if (settings::FirstOpen.read(ports.settings) == settings::FirstOpen.standard) {
    state.FilePath = state.programFolder + "\\Examples";
    settings::FirstOpen.write(ports.settings, "0");
  }
  const auto path = ports.asker.chooseFile({.kind = FileDialog::Open,
                                            .title = "Open Menu",
                                            .filter = filter(),
                                            .folder = state.FilePath,
                                            .name = ""});
  if (!path) return;
  splitPath(*path);
  if (!ports.files.isFile(*path)) {
    ports.asker.MsgBox(fileNotFound());
    return;
  }
  try {
    load();
  } catch (const FileError& error) {
    ports.asker.noteFailure(error.finding());
    return;
  }
  setTitle(state.FileTitle);
  UpdateMRUList(state.FilePath, state.FileTitle);
  outdatePreview();
}

/// Loads the file that `state` names. A file that is no menu file gives a message and an empty document. For a broken
/// file it throws, and the document is what was read before the error.
void frmMain::load() {
  select(nullptr);
  isPartlyRead_ = true;
  ownFile_ = joinPath(state.FilePath, state.FileTitle);
  Findings notes;
  try {
    state.IsDirty = false;
    LoadMenuFile(ports.files, state.FilePath, state.FileTitle, carryOver, document, notes);
    isPartlyRead_ = false;
  } catch (const NotAMenuFile&) {
    ports.asker.MsgBox({.title = "Cannot Open File",
                        .text = "This file is not a valid " + std::string(productTitle) + " file"});
  } catch (const FileError&) {
    SelectNode(document.tvTreeView.root());
    if (document.tvTreeView.empty()) RefreshCurrentSheet();
    throw;
  }
  SelectNode(document.tvTreeView.root());
  RefreshCurrentSheet();
  state.IsDirty = false;
}

void frmMain::save(const std::string& path) {
  LeaveCells();
  SaveMenuFile(ports.files, path, document);
  state.IsDirty = false;
  isPartlyRead_ = false;
  ownFile_ = path;
}

/// Whether the file may be written: it does not exist, or the author agrees to replace it.
bool frmMain::mayReplace(const std::string& path) const {
  return !ports.files.isFile(path) ||
         ports.asker.MsgBox({.title = "File already exists",
                             .text = "The file you specified already exists. Overwrite?",
                             .icon = BoxIcon::Question,
                             .buttons = {BoxButton::Yes, BoxButton::No}}) == BoxButton::Yes;
}

/// Quirk: the file that `state` names can differ from the file of the document, after a Save As where the author
/// declined to replace a file, or after the first Open, which sets the folder of the samples. Then Save asks first.
void frmMain::mnuFileSave() {
  // After a cancelled first Open there is a folder but no name.
  if (state.FilePath.empty() || state.FileTitle.empty() || isPartlyRead_) {
    mnuFileSaveAs();
    return;
  }
  const auto path = state.FilePath + '\\' + state.FileTitle;
  if (path == ownFile_ || mayReplace(path)) save(path);
}

void frmMain::mnuFileSaveAs() {
  const auto path = ports.asker.chooseFile(
      {.kind = FileDialog::Save,
       .title = "Save Menu As",
       .filter = filter(),
       .folder = state.FilePath,
       .name = state.FileTitle.empty() ? "" : state.FilePath + '\\' + state.FileTitle});
  if (!path) return;
  splitPath(*path);
  if (!mayReplace(*path)) return;
  try {
    save(*path);
  } catch (const FileError& error) {
    ports.asker.noteFailure(error.finding());
    return;
  }
  UpdateMRUList(state.FilePath, state.FileTitle);
  setTitle(state.FileTitle);
}

/// Unlike Open, checks that the file exists before it asks about saving. The list keeps its order.
void frmMain::mnuFileMRU(std::size_t slot) {
  LeaveCells();
  const auto file = recent_.at(slot);
  if (!ports.files.isFile(file.path())) {
    ports.asker.MsgBox(fileNotFound());
    return;
  }
  if (!PromptToSave()) return;
  state.FilePath = file.folder;
  state.FileTitle = file.name;
  load();
  setTitle(state.FileTitle);
  outdatePreview();
}

/// Entries once visible stay visible.
void frmMain::UpdateMRUList(const std::string& path, const std::string& name) {
  const bool isNew = !path.empty() || !name.empty();
  recent_ = isNew ? addRecentFile(ports.settings, {path, name}) : readRecentFiles(ports.settings);
  for (std::size_t slot = 0; slot < recent_.size(); ++slot) {
    const auto& file = recent_.at(slot);
    if (file.empty()) continue;
    const int number = static_cast<int>(slot) + 1;
    auto& entry = commands.entry(recentFileEntries.at(slot));
    entry.visible = true;
    entry.caption = recentFileCaption(number, file);
    if (slot == 0) commands.entry("mnuFileBar0").visible = true;
  }
}

}  // namespace nimbrel
