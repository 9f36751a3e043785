#pragma once

#include <string>

#include "forms/form.h"

namespace nimbrel {

/// Edits a font size: a keyword of CSS, or a whole number with a unit.
class frmFontSize : public Form {
 public:
  /// `tmpFontSize` is the size to edit. OK changes it, Cancel does not.
  explicit frmFontSize(std::string& tmpFontSize);

  void Form_Activate();
  void optBrowserSizing_Click();
  void optCSSSizing_Click();
  void cmdOk_Click();

  Control optBrowserSizing{*this, "optBrowserSizing", ControlKind::Option, "Using Browser-Relative Sizing"};
  Control optCSSSizing{*this, "optCSSSizing", ControlKind::Option, "Using CSS Sizing"};
  Control cmbBrowserSize{*this, "cmbBrowserSize", ControlKind::List};
  Control txtCSSSize{*this, "txtCSSSize", ControlKind::Text};
  Control cmbCSSUnits{*this, "cmbCSSUnits", ControlKind::List};
  Control cmdOk{*this, "cmdOk", ControlKind::Button, "OK"};
  Control cmdCancel{*this, "cmdCancel", ControlKind::Button, "Cancel"};

 private:
  std::string& tmpFontSize_;
};

}  // namespace nimbrel
