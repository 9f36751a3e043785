// Unsaved changes are kept for the time after a crash, and offered then.
#include "forms/recovery_form.h"
#include "shell/main_window.h"

namespace nimbrel {

void frmMain::keepForRecovery() {
  recovery_.emplace(ports.files, ports.stateFolder);
  connections_.push_back(editor.documentReplaced.connect([this] { hasWholeCopy_ = false; }));
  connections_.push_back(editor.edited.connect([this](const Edit& edit) {
    auto change = hasWholeCopy_ ? changeBy(edit, document) : wholeMenu(document);
    hasWholeCopy_ = true;
    recovery_->post({state.FilePath, state.FileTitle, ownFile_, isPartlyRead_}, std::move(change));
    if (const auto failure = recovery_->takeFailure()) ports.asker.noteFailure(*failure);
  }));
  connections_.push_back(editor.dirtyChanged.connect([this](bool isDirty) {
    if (!isDirty) recovery_->discard();
  }));
}

/// Called at the start, while nothing is unsaved. Orphans that the author does not recover or discard are offered again at
/// the next start, which can be that of a second window.
void frmMain::offerRecovery() {
  if (!recovery_) return;
  auto orphans = findOrphans(ports.files, ports.stateFolder);
  if (orphans.empty()) return;
  frmRecovery form(ports.asker, orphans);
  ports.asker.ShowModal(form);
  if (const auto chosen = form.chosen()) recover(std::move(orphans[*chosen]));
}

/// Opens the document of an orphan. Save writes its file, and asks first if another program has changed that since the
/// orphan's program read or wrote it.
void frmMain::recover(Orphan orphan) {
  auto& head = orphan.head.value();
  select(nullptr);
  editor.open(std::move(orphan.document));
  state.FilePath = std::move(head.folder);
  state.FileTitle = std::move(head.name);
  isPartlyRead_ = head.isPartlyRead;
  ownFile_ = std::move(head.file);
  recovery_->adopt(std::move(orphan.folder));
  SelectNode(document.tvTreeView.root());
  setTitle(state.FileTitle.empty() ? "Untitled" : state.FileTitle);
  apply(Edit("Recover"));  // without a step: what is saved is another document
  outdatePreview();
}

}  // namespace nimbrel
