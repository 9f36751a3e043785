#pragma once

#include <array>
#include <functional>

#include "forms/form.h"
#include "model/document.h"
#include "platform/ports.h"

namespace nimbrel {

/// The document's compile settings, on four tabs. Cancel changes
/// nothing.
class frmCompileProperties : public Form {
 public:
  /// OK passes the new settings to `accept`.
  frmCompileProperties(Asker& asker, HelpSystem& help, CompileSettings settings,
                       std::function<void(CompileSettings)> accept);

  void TabStrip1_Click();
  void Option1_Click();
  void Option2_Click();
  void Option3_Click();
  void Option4_Click();
  void chkEnableCrossFrame_Click();
  void cmdOk_Click();

  Control TabStrip1{*this, "TabStrip1", ControlKind::Tabs};

  Control Frame1{*this, "Frame1", ControlKind::Frame};
  Control Label1{*this, "Label1", ControlKind::Label,
                 "The following folders are created after compiling the menu. You may keep the default ones "
                 "(recommended) or change them to custom ones. Custom folders are useful for multiple menus, "
                 "where all menus can reference the same menu-building libraries."};
  Control ScriptsFolder{*this, "ScriptsFolder", ControlKind::Frame, "Libraries Folder"};
  Control Option1{*this, "Option1", ControlKind::Option, "Default    (nbrData-CompiledMenuName)"};
  Control Option2{*this, "Option2", ControlKind::Option, "Custom:"};
  Control txtLibraryPath{*this, "txtLibraryPath", ControlKind::Text};
  Control ImagesFolder{*this, "ImagesFolder", ControlKind::Frame, "Images Folder"};
  Control Option3{*this, "Option3", ControlKind::Option, "Default    (nbrData-CompiledMenuName)"};
  Control Option4{*this, "Option4", ControlKind::Option, "Custom:"};
  Control txtImagePath{*this, "txtImagePath", ControlKind::Text};

  Control Frame2{*this, "Frame2", ControlKind::Frame};
  Control chkEnableCrossFrame{*this, "chkEnableCrossFrame", ControlKind::Check, "Enable Cross-Frame Support"};
  Control Label2{
      *this, "Label2", ControlKind::Label,
      "Cross-Frame support implies that the Main Menu will be placed into one frame, while its Submenus "
      "will open into a different frame. You need to provide the NAME of this frame where the Submenus "
      "will open."};
  Control Label3{*this, "Label3", ControlKind::Label, "Frame Name where the Submenus will open:"};
  Control txtSubmenusFrame{*this, "txtSubmenusFrame", ControlKind::Text};
  Control Label4{
      *this, "Label4", ControlKind::Label,
      "The Submenus may not be properly aligned with their parent items if your frameset consists of "
      "multiple frames. In this case, a Positioning Offset in pixels may be required."};
  Control Label5{*this, "Label5", ControlKind::Label, "Submenus Positioning Offset:"};
  Control txtSubmenusFrameOffset{*this, "txtSubmenusFrameOffset", ControlKind::Text};

  Control Frame3{*this, "Frame3", ControlKind::Frame};
  Control Label6{
      *this, "Label6", ControlKind::Label,
      "Large menus can be build faster if their items use the same appearance in both the [Mouse Over] "
      "and the [Mouse Click] states."};
  Control chkIgnoreThirdState{*this, "chkIgnoreThirdState", ControlKind::Check,
                              "Ignore [Mouse Click] Item State to gain menu-building speed"};

  Control Frame4{*this, "Frame4", ControlKind::Frame};
  Control Label7{
      *this, "Label7", ControlKind::Label,
      "To use Nimbrel with FrontPage Shared Borders you need to follow the guidelines below:\r\n\r\n"
      "1. The menu should be linked ONLY to the BOTTOM Shared Border (_borders/bottom.htm file)\r\n"
      "2. The following box needs to be CHECKED before you compile the menu.\r\n"
      "3. Keep your Web closed during compile and/or linking so that the changes take effect."};
  Control chkFrontPage{*this, "chkFrontPage", ControlKind::Check, "Support Shared Borders in FrontPage"};
  Control Label8{
      *this, "Label8", ControlKind::Label,
      "Note: Linking the menu to the BOTTOM Shared Border does NOT change your desired positioning for "
      "the menu. The menu appears at the position you specified, regardless of where you inserted the "
      "menu-linking code."};

  Control cmdOk{*this, "cmdOk", ControlKind::Button, "OK"};
  Control cmdCancel{*this, "cmdCancel", ControlKind::Button, "Cancel"};
  Control cmdHelp{*this, "cmdHelp", ControlKind::Button, "Help"};

 private:
  void bind(HelpSystem& help);
  void fill();
  void showTab();
  bool ValidateFolderName(const Control& textBox);

  std::size_t tab_ = 0;  ///< the current tab
  Asker& asker_;
  CompileSettings settings_;
  std::function<void(CompileSettings)> accept_;
};

}  // namespace nimbrel
