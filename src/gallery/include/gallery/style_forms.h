#pragma once

#include "model/tree.h"
#include "platform/ports.h"
#include "platform/program_state.h"

namespace nimbrel {

/// Asks for the name of a new style and stores it in `StyleName`, which Cancel makes empty.
class frmSaveStyle : public Form {
 public:
  frmSaveStyle(Ports& ports, ProgramState& state);

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
  Ports& ports_;
  ProgramState& state_;
};

/// Shown after a style was picked, explains where it can be applied: `frmPickStyleMenu`,
/// `frmPickStyleSubmenu` or `frmPickStyleItem`.
class PickStyleHint : public Form {
 public:
  PickStyleHint(Ports& ports, Kind kind);

  Control Label1{*this, "Label1", ControlKind::Label};
  Control Check1{*this, "Check1", ControlKind::Check, "Don't show this dialog in the future"};
  Control cmdOk{*this, "cmdOk", ControlKind::Button, "OK"};
  Control cmdMoreInfo{*this, "cmdMoreInfo", ControlKind::Button, "More Info"};
};

}  // namespace nimbrel
