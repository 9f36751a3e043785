// New, Open and Save, and the question before changes are lost.
#include <array>

#include "model/structure.h"
#include "platform/settings.h"
#include "shell/main_window.h"
#include "text/paths.h"
#include "text/product.h"

namespace nimbrel {
namespace {

constexpr std::array<std::string_view, std::tuple_size_v<RecentFiles>> recentFileEntries{
    "mnuFileMRU1", "mnuFileMRU2", "mnuFileMRU3", "mnuFileMRU4"};

std::string filter() { return std::string(productTitle) + " Files (*.nbr)|*.nbr"; }

MessageBox fileNotFound() {
  return {.title = "File Not Found", .text = "The file you specified cannot be found"};
}

MessageBox changedByOthers(const std::string& path) {
  return {
      .title = std::string(productTitle),
      .text =
          path + " has been changed by another program since it was opened here.\r\nOverwrite those changes?",
      .buttons = {BoxButton::Overwrite, BoxButton::SaveAs, BoxButton::Cancel},
      .defaultButton = BoxButton::SaveAs,
      .paths = {path}};
}

std::string lossText(const ReadNotes& notes) {
  const auto& first = notes.findings.front().text();
  if (notes.unknownValues == 0) return first;
  const auto count = notes.unknownValues;
  return std::to_string(count) + (count == 1 ? " value is" : " values are") +
         " unknown to this version. The first: " + first;
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
  if (browser.isPreviewWindowLoaded) browser.SetOutdated();
}

/// Quirk: the setting for shared borders is taken over from the previous document.
void frmMain::mnuFileNew() {
  LeaveCells();
  if (!PromptToSave()) return;
  state.FilePath.clear();
  state.FileTitle.clear();
  select(nullptr);
  Document created;
  BuildDefaultDocument(created);
  created.settings.nbrFrontPageSupport = document.settings.nbrFrontPageSupport;
  editor.open(std::move(created));
  SelectNode(document.tvTreeView.root());
  isPartlyRead_ = false;
  ownFile_ = {};
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
  const auto folderOfDocument = state.FilePath;
  if (settings::FirstOpen.read(ports.settings) == settings::FirstOpen.standard) {
    state.FilePath = state.programFolder + "\\Examples";
    settings::FirstOpen.write(ports.settings, "0");
  }
  const auto path = ports.asker.chooseFile({.kind = FileDialog::Open,
                                            .title = "Open Menu",
                                            .filter = filter(),
                                            .folder = state.FilePath,
                                            .name = ""});
  if (!path) {
    if (!state.FileTitle.empty()) state.FilePath = folderOfDocument;  // Save must not write among the samples
    return;
  }
  splitPath(*path);
  if (!ports.files.isFile(*path)) {
    ports.asker.MsgBox(fileNotFound());
    return;
  }
  if (!load()) return;
  setTitle(state.FileTitle);
  UpdateMRUList(state.FilePath, state.FileTitle);
  outdatePreview();
}

/// Loads the file that `state` names. A file that is no menu file gives a message and an empty document. Returns false
/// for a broken file, after telling the author; the document is then what was read before the error.
bool frmMain::load() {
  select(nullptr);
  isPartlyRead_ = true;
  ownFile_ = {};
  Document loaded;
  loaded.settings = document.settings;  // Quirk: stays if the file is no menu file
  ReadNotes notes;
  std::optional<Finding> failure;
  try {
    const auto path = joinPath(state.FilePath, state.FileTitle);
    const auto bytes = ports.files.read(path);
    ownFile_ = KnownFile(path, bytes);
    readMenuFile(bytes, path, state.FilePath, carryOver, loaded, notes);
    isPartlyRead_ = !notes.findings.empty();
  } catch (const NotAMenuFile&) {
    ports.asker.MsgBox({.title = "Cannot Open File",
                        .text = "This file is not a valid " + std::string(productTitle) + " file"});
  } catch (const FileError& error) {
    failure = error.finding();
  }
  editor.open(std::move(loaded));
  SelectNode(document.tvTreeView.root());
  if (!failure || document.tvTreeView.empty()) RefreshCurrentSheet();
  for (const auto& note : notes.findings) ports.asker.noteFailure(note);
  if (failure) {
    ports.asker.noteFailure(*failure);
    warnOfLoss(failure->path, "could not be read whole: " + failure->text());
  } else if (isPartlyRead_ && !notes.findings.empty()) {
    warnOfLoss(ownFile_.path(), "was not read whole: " + lossText(notes));
  }
  return !failure;
}

/// Tells what the author would lose by believing that the file was read whole.
void frmMain::warnOfLoss(const std::string& path, const std::string& reason) {
  ports.asker.MsgBox({.title = std::string(productTitle),
                      .text = path + " " + reason +
                              "\r\n\r\nSave will ask for a file name, so that this file stays as it is.",
                      .paths = {path}});
}

/// Offers to load the document's file again if another program has changed it and nothing here is unsaved. An offer
/// that the author declines is not made again for the same change.
void frmMain::offerReload() {
  if (state.IsDirty || ownFile_.path().empty() || !ownFile_.hasChanged(ports.files)) return;
  const auto status = ports.files.status(ownFile_.path());
  if (status == declinedReload_) return;
  LeaveCells();
  if (state.IsDirty) return;
  declinedReload_ = status;
  const auto path = ownFile_.path();
  if (ports.asker.MsgBox({.title = std::string(productTitle),
                          .text = path + " has been changed by another program.\r\nReload it?",
                          .icon = BoxIcon::Question,
                          .buttons = {BoxButton::Reload, BoxButton::Cancel},
                          .paths = {path}}) != BoxButton::Reload) {
    return;
  }
  const auto key = selectedKey_;
  splitPath(path);
  load();
  SelectNode(document.tvTreeView.find(key));
  outdatePreview();
}

/// Writes the document, unless another program has changed its file and the author does not want to overwrite that.
/// Returns whether it was written.
bool frmMain::save(const std::string& path) {
  LeaveCells();
  while (true) {
    // Held from the comparison to the end of the write, so that no other program of ours saves in between.
    auto lock = ports.files.lock(std::array{std::string(folderName(path))});
    if (path != ownFile_.path() || !ownFile_.hasChanged(ports.files)) {
      const auto text = menuFileText(document);
      ports.files.replace(path, text);
      ownFile_ = KnownFile(path, text);
      break;
    }
    lock.reset();
    switch (ports.asker.MsgBox(changedByOthers(path))) {
      case BoxButton::Overwrite: ownFile_.accept(ports.files); break;
      case BoxButton::SaveAs: mnuFileSaveAs(); return false;
      default: return false;
    }
  }
  editor.markSaved();
  isPartlyRead_ = false;
  return true;
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
/// declined to replace a file, or an Open that found no file. Then Save writes the new one, and asks first if it exists.
void frmMain::mnuFileSave() {
  // Without a name there can be a folder: the first Open sets that of the samples.
  if (state.FilePath.empty() || state.FileTitle.empty() || isPartlyRead_) {
    mnuFileSaveAs();
    return;
  }
  const auto path = state.FilePath + '\\' + state.FileTitle;
  if (path == ownFile_.path() || mayReplace(path)) save(path);
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
    if (!save(*path)) return;
  } catch (const FileError& error) {
    ports.asker.noteFailure(error.finding());
    ports.asker.MsgBox({.title = std::string(productTitle),
                        .text = "The menu was not saved.\r\n" + *path + ": " + error.finding().text(),
                        .paths = {*path}});
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
  if (!load()) return;
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
