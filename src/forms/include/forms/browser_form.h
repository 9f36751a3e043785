#pragma once

#include <functional>
#include <string>

#include "forms/form.h"
#include "platform/asker.h"
#include "platform/file_system.h"

namespace nimbrel {

/// The preview window. Shows the preview page and whether it is up to date, and removes the page's files after they
/// are loaded. Closing only hides it.
class frmBrowser : public Form {
 public:
  /// `CreatePreviewFile` creates the page and shows it in this window.
  frmBrowser(FileSystem& previews, Asker& asker, std::string programFolder,
             std::function<void()> CreatePreviewFile);

  /// Shows the window, for the first time or again.
  void Show();
  void QueryClose() override;

  void RefreshPreview();
  void SetUpdated();
  void SetOutdated();

  void btnRefreshPreview_Click();
  void chkBlackPreview_Click();
  void brwWebBrowser_DocumentComplete();
  void Timer1_Timer();

  bool BlackPreview = false;           ///< the page has a dark background
  bool isPreviewWindowLoaded = false;  ///< the window exists, shown or hidden

  Control brwWebBrowser{*this, "brwWebBrowser", ControlKind::Browser};
  Control btnRefreshPreview{*this, "btnRefreshPreview", ControlKind::Button, "Refresh Preview"};
  Control chkBlackPreview{*this, "chkBlackPreview", ControlKind::Check, "Dark Background"};
  Control lblUpdated{*this, "lblUpdated", ControlKind::Label, " Preview is updated"};
  Control lblOutdated{*this, "lblOutdated", ControlKind::Label, " Preview needs to be refreshed"};
  Control Timer1{*this, "Timer1", ControlKind::Timer};

 private:
  FileSystem& previews_;
  Asker& asker_;
  std::string programFolder_;
  std::function<void()> CreatePreviewFile_;
};

}  // namespace nimbrel
