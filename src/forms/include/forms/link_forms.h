#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "forms/form.h"
#include "platform/ports.h"

/// The dialogs of linking: choose the compiled menu, choose the pages, link, preview them. They work from compiled
/// files; the open document does not matter.
namespace nimbrel {

/// What these forms use of their surroundings. Borrowed.
struct LinkPorts {
  FileSystem& files;
  Asker& asker;
  HelpSystem& help;
  Opener& opener;
};

/// Chooses the pages and links one compiled file to them. A menu with submenus in another frame needs two of these
/// forms, one after the other, for its two files.
class frmInsertIntoWebPage1 : public Form {
 public:
  /// `LastWebPageDir` is the folder to open; it is updated when the author changes the folder. `submenus` is the
  /// second file of a cross-frame menu, or empty.
  frmInsertIntoWebPage1(const LinkPorts& ports, std::string& LastWebPageDir, std::string_view compiled,
                        std::string_view submenus);

  void Dir1_Change();
  void Combo1_Click();
  void cmbAddToList_Click();
  void cmbRemoveFromList_Click();
  void chkAltUrl_Click();
  void cmdLink_Click();

  static constexpr int smallestWidth = 7000;  ///< twips

  Control label1{*this, "Label1", ControlKind::Label,
                 "The following compiled menu will be linked to your selected pages:"};
  Control label2{*this, "Label2", ControlKind::Label, "Select web pages:"};
  Control label3{*this, "Label3", ControlKind::Label,
                 "The compiled menu will be linked to all pages selected here:"};
  Control lblMenuDestination{*this, "lblMenuDestination", ControlKind::Label};
  /// Empty for a menu of one file; the path of the second file in the first of two passes; a marker in the second.
  Control lblSubmenusDestination{*this, "lblSubmenusDestination", ControlKind::Label};
  Control Drive1{*this, "Drive1", ControlKind::List};  ///< hidden where the system has no drives
  Control Dir1{*this, "Dir1", ControlKind::Folder};
  Control File1{*this, "File1", ControlKind::List};
  Control Combo1{*this, "Combo1", ControlKind::List};
  Control cmbAddToList{*this, "cmbAddToList", ControlKind::Button};
  Control cmbRemoveFromList{*this, "cmbRemoveFromList", ControlKind::Button};
  Control List1{*this, "List1", ControlKind::List};
  Control chkAltUrl{*this, "chkAltUrl", ControlKind::Check, "Use Alternative URL:"};
  Control txtAltUrl{*this, "txtAltUrl", ControlKind::Text};
  Control cmdLink{*this, "cmdLink", ControlKind::Button, "Link"};
  Control cmdCancel{*this, "cmdCancel", ControlKind::Button, "Cancel"};
  Control cmdHelp{*this, "cmdHelp", ControlKind::Button, "Help"};
  Control cmdHelpAltUrl{*this, "cmdHelpAltUrl", ControlKind::Button, "What is this?"};

 private:
  void bind();
  void listFiles();
  void reportUnlinked(const Findings& findings);
  void goOnWithSubmenus();
  void offerPreview();

  LinkPorts ports_;
  std::string& LastWebPageDir_;
  std::string savedAltUrl_;
};

/// Asks for the compiled file and refuses one of an old build.
class frmInsertIntoWebPage0 : public Form {
 public:
  /// `lastCompiled` is the path of the document's last compile, or empty.
  frmInsertIntoWebPage0(const LinkPorts& ports, std::string& LastWebPageDir, std::string_view lastCompiled);

  void txtMenuDestination_Change();
  void cmdBrowse_Click();
  void cmdOk_Click();

  Control label1{*this, "Label1", ControlKind::Label,
                 "Specify the compiled menu (.js) to link to your web pages:"};
  Control txtMenuDestination{*this, "txtMenuDestination", ControlKind::Text};
  Control cmdBrowse{*this, "cmdBrowse", ControlKind::Button, "Browse..."};
  Control cmdOk{*this, "cmdOk", ControlKind::Button, "OK"};
  Control cmdCancel{*this, "cmdCancel", ControlKind::Button, "Cancel"};
  Control cmdHelp{*this, "cmdHelp", ControlKind::Button, "Help"};

 private:
  LinkPorts ports_;
  std::string& LastWebPageDir_;
  std::string lastCompiled_;
};

/// Opens linked pages in the system's browser.
class frmPreviewPages : public Form {
 public:
  frmPreviewPages(Opener& opener, std::vector<std::string> pages);

  void cmdPreview_Click();

  Control List1{*this, "List1", ControlKind::List};
  Control cmdPreview{*this, "cmdPreview", ControlKind::Button, "Preview Page"};
  Control cmdClose{*this, "cmdClose", ControlKind::Button, "Close"};

 private:
  Opener& opener_;
};

}  // namespace nimbrel
