#pragma once

#include <functional>
#include <string>
#include <vector>

#include "forms/form.h"
#include "platform/ports.h"

/// The small windows of the shell.
namespace nimbrel {

/// Shows a random line of the tip file.
class frmTip : public Form {
 public:
  /// `random` returns a number from 0 to below 1. `showAtStartup` is called when the author turns tips at the start on or off.
  frmTip(const FileSystem& files, SettingsStore& settings, std::function<double()> random,
         const std::string& programFolder, std::function<void(bool)> showAtStartup);

  /// Reads the tips, one per line. Returns false if the file cannot be read.
  bool LoadTips(const std::string& path);
  void DisplayCurrentTip();
  void cmdNextTip_Click();
  void chkLoadTipsAtStartup_Click();

  Control Label1{*this, "Label1", ControlKind::Label, "Did you know..."};
  Control lblTipText{*this, "lblTipText", ControlKind::Label};
  Control chkLoadTipsAtStartup{*this, "chkLoadTipsAtStartup", ControlKind::Check, "&Show Tips at Startup"};
  Control cmdNextTip{*this, "cmdNextTip", ControlKind::Button, "&Next Tip"};
  Control cmdOK{*this, "cmdOK", ControlKind::Button, "Close"};

 private:
  const FileSystem& files_;
  SettingsStore& settings_;
  std::function<double()> random_;
  std::function<void(bool)> showAtStartup_;
  std::vector<std::string> tips_;
  std::size_t current_ = 0;  ///< starts at 1
};

class frmAbout : public Form {
 public:
  explicit frmAbout(Opener& opener);

  Control lblTitle{*this, "lblTitle", ControlKind::Label};
  Control lblVersion{*this, "lblVersion", ControlKind::Label};
  Control lblAddress{*this, "lblAddress", ControlKind::Label};  ///< a click opens the page
  Control cmdOK{*this, "cmdOK", ControlKind::Button, "OK"};
};

/// Visible while the program starts. Has the size of its picture, in pixels.
class frmSplash : public Form {
 public:
  frmSplash() : Form("frmSplash", "") {}

  static constexpr int width = 406;
  static constexpr int height = 306;

  Control Picture1{*this, "Picture1", ControlKind::Frame};
};

}  // namespace nimbrel
