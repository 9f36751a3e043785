#include "forms/compile_properties.h"

#include <utility>

#include "compiler/picture_file.h"
#include "text/numbers.h"

namespace nimbrel {
namespace {

constexpr int helpTopic = 2650;
constexpr int foldersGroup = 1;
constexpr int imagesGroup = 2;

/// An empty folder name means the default folder.
void fillFolder(Form& form, Control& standard, Control& custom, Control& box, const std::string& folder) {
  form.setOption(folder.empty() ? standard : custom);
  box.text = folder;
  box.enabled = !folder.empty();
}

}  // namespace

frmCompileProperties::frmCompileProperties(Asker& asker, HelpSystem& help, CompileSettings settings,
                                           std::function<void(CompileSettings)> accept)
    : Form("frmCompileProperties", "Compile Properties"),
      asker_(asker),
      settings_(std::move(settings)),
      accept_(std::move(accept)) {
  bind(help);
  cancelButton = cmdCancel.name;
  TabStrip1.list = {"Folders", "Cross-Frame Support", "Optimization", "FrontPage Support"};
  TabStrip1.selected = {0};
  TabStrip1.text = TabStrip1.list.front();
  Option1.group = Option2.group = foldersGroup;
  Option3.group = Option4.group = imagesGroup;
  fill();
  showTab();
}

void frmCompileProperties::bind(HelpSystem& help) {
  TabStrip1.event = [this] { TabStrip1_Click(); };
  Option1.event = [this] { Option1_Click(); };
  Option2.event = [this] { Option2_Click(); };
  Option3.event = [this] { Option3_Click(); };
  Option4.event = [this] { Option4_Click(); };
  chkEnableCrossFrame.event = [this] { chkEnableCrossFrame_Click(); };
  cmdOk.event = [this] { cmdOk_Click(); };
  cmdCancel.event = [this] { Close(); };
  cmdHelp.event = [&help] { help.openTopic(helpTopic); };
}

void frmCompileProperties::fill() {
  fillFolder(*this, Option1, Option2, txtLibraryPath, settings_.nbrLibraryPath);
  fillFolder(*this, Option3, Option4, txtImagePath, settings_.nbrImagePath);
  chkEnableCrossFrame.value = !settings_.nbrSubmenusFrame.empty();
  chkEnableCrossFrame_Click();
  txtSubmenusFrame.text = settings_.nbrSubmenusFrame;
  if (chkEnableCrossFrame.value) {
    txtSubmenusFrameOffset.text = std::to_string(settings_.nbrSubmenusFrameOffset);
  }
  chkIgnoreThirdState.value = settings_.nbrOptimize;
  chkFrontPage.value = settings_.nbrFrontPageSupport;
}

/// The author can leave a tab only if both folder names are valid.
void frmCompileProperties::TabStrip1_Click() {
  if (!ValidateFolderName(txtLibraryPath) || !ValidateFolderName(txtImagePath)) {
    TabStrip1.selected = {tab_};
    TabStrip1.text = TabStrip1.list[tab_];
  }
  showTab();
}

void frmCompileProperties::showTab() {
  tab_ = TabStrip1.selected.empty() ? 0 : TabStrip1.selected.front();
  const std::array frames{&Frame1, &Frame2, &Frame3, &Frame4};
  for (std::size_t i = 0; i < frames.size(); ++i) frames.at(i)->visible = i == tab_;
}

void frmCompileProperties::Option1_Click() {
  txtLibraryPath.text.clear();
  txtLibraryPath.enabled = false;
}

void frmCompileProperties::Option2_Click() { txtLibraryPath.enabled = true; }

void frmCompileProperties::Option3_Click() {
  txtImagePath.text.clear();
  txtImagePath.enabled = false;
}

void frmCompileProperties::Option4_Click() { txtImagePath.enabled = true; }

void frmCompileProperties::chkEnableCrossFrame_Click() {
  const bool on = chkEnableCrossFrame.value;
  for (auto* control : {&Label2, &Label3, &txtSubmenusFrame, &Label4, &Label5, &txtSubmenusFrameOffset}) {
    control->enabled = on;
  }
  if (!on) txtSubmenusFrame.text.clear();
  txtSubmenusFrameOffset.text = on ? "0" : "";
}

/// Quirk: the message lists the slash, but the check accepts it, so that nested folders are possible.
bool frmCompileProperties::ValidateFolderName(const Control& textBox) {
  const bool isName = textBox.text.find_first_of("\\:*?\"<>|") == std::string::npos;
  if (isName && (textBox.text.empty() || staysInside(textBox.text))) return true;
  asker_.MsgBox(
      {.title = isName ? "Folder outside of the menu's folder" : "Invalid character",
       .text = isName ? "The folder must be inside the folder of the compiled menu. Its name cannot begin or "
                        "end with a "
                        "slash, or have a part that is empty, \".\" or \"..\"."
                      : "A folder name cannot contain any of the following characters:\r\\ / : * ? \" < > |",
       .icon = BoxIcon::Critical});
  toFocus = &textBox;
  return false;
}

void frmCompileProperties::cmdOk_Click() {
  if (!ValidateFolderName(txtLibraryPath) || !ValidateFolderName(txtImagePath)) return;
  settings_.nbrLibraryPath = txtLibraryPath.text;
  settings_.nbrImagePath = txtImagePath.text;
  settings_.nbrSubmenusFrame = txtSubmenusFrame.text;
  const auto offset = parseInteger(txtSubmenusFrameOffset.text);
  settings_.nbrSubmenusFrameOffset = settings_.nbrSubmenusFrame.empty() ? 0 : offset.value_or(0);
  settings_.nbrOptimize = chkIgnoreThirdState.value;
  settings_.nbrFrontPageSupport = chkFrontPage.value;
  accept_(settings_);
  Close();
}

}  // namespace nimbrel
