#pragma once

#include <functional>
#include <optional>

#include "forms/form.h"
#include "gallery/sample_menu.h"
#include "gallery/style_picking.h"
#include "platform/ports.h"

namespace nimbrel {

/// What the gallery uses of its surroundings. Borrowed.
struct GalleryPorts {
  FileSystem& files;
  FileSystem& previews;
  Asker& asker;
  Opener& opener;
};

/// The style gallery: shows each style on a sample menu, deletes styles, and applies one to the document.
class frmGallery : public Form {
 public:
  /// `selectedKind` is the kind of the selected node. `apply` applies the shown style to the document.
  frmGallery(const GalleryPorts& ports, std::string programFolder, SubmenuCarryOver& carryOver,
             Kind selectedKind, std::function<void(StyleScope, const MenuStyle&)> apply);

  /// Called each time the window is activated.
  void Form_Activate();
  void FillStyleList();
  void CreatePreviewFile();

  void cboStyle_Click();
  void btnApply_Click();
  void btnDeleteStyle_Click();
  void WebBrowser_DocumentComplete();
  void Timer1_Timer();

  Control Label1{*this, "Label1", ControlKind::Label, "Choose Style:"};
  Control cboStyle{*this, "cboStyle", ControlKind::List};
  Control WebBrowser{*this, "WebBrowser", ControlKind::Browser};
  Control Timer1{*this, "Timer1", ControlKind::Timer};
  Control Frame1{*this, "Frame1", ControlKind::Frame, "Apply the above style to:"};
  Control Option1{*this, "Option1", ControlKind::Option, "Entire menu"};
  Control Option2{*this, "Option2", ControlKind::Option, "Selected submenu and its items"};
  Control Option3{*this, "Option3", ControlKind::Option, "Selected item only"};
  Control btnApply{*this, "btnApply", ControlKind::Button, "Apply Style"};
  Control btnCancel{*this, "btnCancel", ControlKind::Button, "Cancel"};
  Control btnDeleteStyle{*this, "btnDeleteStyle", ControlKind::Button, "Delete Selected Style from Gallery"};
  Control Label2{*this, "Label2", ControlKind::Label, "Remember:"};
  Control Label3{*this, "Label3", ControlKind::Label, "You can download new styles at:"};
  Control Label4{*this, "Label4", ControlKind::Label, "https://nimbrel.example/nbrstyles.html"};

  bool StyleInvalid = false;

 private:
  void bind();
  void noteFailures(const StepReport& report);
  void readSelected();

  GalleryPorts ports_;
  std::string programFolder_;
  SubmenuCarryOver& carryOver_;
  std::function<void(StyleScope, const MenuStyle&)> apply_;
  Document sample_ = BuildSampleMenu();
  MenuStyle style_;
  bool isWhole_ = true;  ///< the style was read completely
};

}  // namespace nimbrel
