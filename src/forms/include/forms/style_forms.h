#pragma once

#include <string>

#include "forms/form.h"
#include "model/tree.h"
#include "platform/ports.h"

namespace nimbrel {

/// Asks for the name of a new style.
class frmSaveStyle : public Form {
 public:
  frmSaveStyle(const FileSystem& files, Asker& asker, std::string programFolder);

  /// The result: empty until OK is clicked.
  std::string StyleName;

  void txtStyleName_Change();
  void btnOk_Click();
  void btnCancel_Click();

  Control Label1{
      *this, "Label1", ControlKind::Label,
      "You are about to add a new style into the Style Gallery. The new style is defined by the style "
      "properties of the Main Menu and its first item. Please enter the name of the new style:"};
  Control Label2{*this, "Label2", ControlKind::Label, "Style Name:"};
  Control txtStyleName{*this, "txtStyleName", ControlKind::Text};
  Control btnOk{*this, "btnOk", ControlKind::Button, "OK"};
  Control btnCancel{*this, "btnCancel", ControlKind::Button, "Cancel"};

 private:
  const FileSystem& files_;
  Asker& asker_;
  std::string programFolder_;
};

/// Shown after a style was picked, explains where it can be applied: `frmPickStyleMenu`,
/// `frmPickStyleSubmenu` or `frmPickStyleItem`.
class PickStyleHint : public Form {
 public:
  PickStyleHint(SettingsStore& settings, HelpSystem& help, Kind kind);

  Control Label1{*this, "Label1", ControlKind::Label};
  Control Check1{*this, "Check1", ControlKind::Check, "Don't show this dialog in the future"};
  Control cmdOk{*this, "cmdOk", ControlKind::Button, "OK"};
  Control cmdMoreInfo{*this, "cmdMoreInfo", ControlKind::Button, "More Info"};
};

}  // namespace nimbrel
