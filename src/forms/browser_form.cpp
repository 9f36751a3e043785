#include "forms/browser_form.h"

#include <utility>

#include "preview/preview_page.h"

namespace nimbrel {

frmBrowser::frmBrowser(FileSystem& previews, Asker& asker, std::string programFolder,
                       std::function<void()> CreatePreviewFile)
    : Form("frmBrowser", "Preview Menu"),
      previews_(previews),
      asker_(asker),
      programFolder_(std::move(programFolder)),
      CreatePreviewFile_(std::move(CreatePreviewFile)) {
  brwWebBrowser.event = [this] { brwWebBrowser_DocumentComplete(); };
  brwWebBrowser.reload = [this] { btnRefreshPreview_Click(); };
  btnRefreshPreview.event = [this] { btnRefreshPreview_Click(); };
  chkBlackPreview.event = [this] { chkBlackPreview_Click(); };
  Timer1.event = [this] { Timer1_Timer(); };
  Timer1.interval = 1000;
  SetUpdated();
}

void frmBrowser::Show() {
  isOpen = true;
  ++shows;
  if (!isPreviewWindowLoaded) toFocus = &btnRefreshPreview;
  isPreviewWindowLoaded = true;
}

/// Only hides the window; the main window closes it when the program ends.
void frmBrowser::QueryClose() { Close(); }

/// The timer of an earlier page would remove the files of this one.
void frmBrowser::RefreshPreview() {
  Timer1.value = false;
  navigate(brwWebBrowser, previewPagePath(programFolder_));
  SetUpdated();
}

void frmBrowser::SetUpdated() {
  lblUpdated.visible = true;
  lblOutdated.visible = false;
}

void frmBrowser::SetOutdated() {
  lblUpdated.visible = false;
  lblOutdated.visible = true;
}

/// Quirk: creating the page already shows it, so the browser loads it twice.
void frmBrowser::btnRefreshPreview_Click() {
  CreatePreviewFile_();
  RefreshPreview();
}

void frmBrowser::chkBlackPreview_Click() {
  BlackPreview = chkBlackPreview.value;
  CreatePreviewFile_();
  RefreshPreview();
}

void frmBrowser::brwWebBrowser_DocumentComplete() { Timer1.value = true; }

/// Removes the preview's files once; the browser has loaded them.
void frmBrowser::Timer1_Timer() {
  Timer1.value = false;
  StepReport report;
  RemovePreviewPage(previews_, programFolder_, report);
  for (const auto& finding : report.findings) asker_.noteFailure(finding);
}

}  // namespace nimbrel
