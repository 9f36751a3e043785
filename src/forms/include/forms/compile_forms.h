#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "compiler/compile.h"
#include "forms/form.h"
#include "platform/ports.h"

/// The dialogs around a compile.
namespace nimbrel {

/// Reminds the author before a compile where the compiled menu belongs.
class frmCompileMenuWarning : public Form {
 public:
  frmCompileMenuWarning(SettingsStore& settings, HelpSystem& help);

  void Check1_Click();

  Control Label1{*this, "Label1", ControlKind::Label, "You are about to compile your menu"};
  Control Label2{*this, "Label2", ControlKind::Label,
                 "Please choose a location inside your local web site's directory structure."};
  Control Check1{*this, "Check1", ControlKind::Check, "Don't show this dialog in the future"};
  Control cmdMoreInfo{*this, "cmdMoreInfo", ControlKind::Button, "More Info"};
  Control cmdOk{*this, "cmdOk", ControlKind::Button, "OK"};

 private:
  SettingsStore& settings_;
};

/// Starts linking the compiled menu. `submenus` is the submenus file, or empty.
using StartLinking = std::function<void(std::string_view menu, std::string_view submenus)>;

/// The part that both reports of a compile share.
class CompileReport : public Form {
 public:
  void cmdYes_Click();

  Control Frame1;
  Control Label12{*this, "Label12", ControlKind::Label,
                  "2) The required dummy image used to resolve older browser inefficiencies:"};
  Control lblImageName{*this, "lblImageName", ControlKind::Label};
  Control Label13{*this, "Label13", ControlKind::Label,
                  "3) The directory that contains the necessary menu-building libraries (nbrlib-X.js):"};
  Control lblMenuDir{*this, "lblMenuDir", ControlKind::Label};
  Control Label9{*this, "Label9", ControlKind::Label,
                 "4) The directory that contains the menu images (if any):"};
  Control lblImagesDir{*this, "lblImagesDir", ControlKind::Label};
  Control Label5{*this, "Label5", ControlKind::Label,
                 "ALL above entities must be uploaded at the same directory structure on your server."};
  Control Label2{*this, "Label2", ControlKind::Label,
                 "You must now link the compiled menu to your web pages."};
  Control Label6{*this, "Label6", ControlKind::Label,
                 "Would you like to proceed to the menu linking process?"};
  Control cmdYes{*this, "cmdYes", ControlKind::Button, "Yes, please"};
  Control cmdNo{*this, "cmdNo", ControlKind::Button, "No, I have already created the links"};

 protected:
  CompileReport(std::string_view formName, std::string_view frame, const CompileSettings& settings,
                StartLinking link);

 private:
  std::string menu_;
  std::string submenus_;
  StartLinking link_;
};

class frmCompileCompleted : public CompileReport {
 public:
  frmCompileCompleted(const CompileSettings& settings, StartLinking link);

  Control Label14{*this, "Label14", ControlKind::Label,
                  "1) The javascript file that contains the compiled menu definition:"};
  Control lblMenuName{*this, "lblMenuName", ControlKind::Label};
};

/// The report of a menu of two files.
class frmCompileCompletedCF : public CompileReport {
 public:
  frmCompileCompletedCF(const CompileSettings& settings, StartLinking link);

  Control Label7{*this, "Label7", ControlKind::Label, "You have enabled the Cross-Frame Support."};
  Control Label4{*this, "Label4", ControlKind::Label,
                 "1) The code for the compiled menu, split into two files:"};
  Control Label8{*this, "Label8", ControlKind::Label, "1.1 The javascript file containing the Main Menu"};
  Control lblMenuName1{*this, "lblMenuName1", ControlKind::Label};
  Control Label11{*this, "Label11", ControlKind::Label,
                  "1.2 The javascript file containing all the submenus deriving from the Main Menu:"};
  Control lblMenuName2{*this, "lblMenuName2", ControlKind::Label};
};

}  // namespace nimbrel
