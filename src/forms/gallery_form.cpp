#include "forms/gallery_form.h"

#include <array>
#include <utility>

#include "compiler/script_assembly.h"
#include "text/ascii.h"
#include "text/paths.h"

namespace nimbrel {
namespace {

constexpr const char* previewPage =
    "<HTML>\r\n"
    "<BODY BACKGROUND=\"../stylepreview-back.jpg\">\r\n"
    "<img name='nbrMenuPathImg-gallery' id='nbrMenuPathImg-gallery' src='./nbrmenupath.gif' "
    "style='position:absolute;' width=1 height=1>\r\n"
    "<script>var nbrAltUrl='';</script>\r\n"
    "<script src='./stylepreview.js' language='JavaScript1.2' type='text/javascript'></script>\r\n"
    "<script>nbrBuildMenu();</script>\r\n"
    "</BODY>\r\n"
    "</HTML>\r\n";

bool isOldPicture(std::string_view name) {
  const auto lower = lowered(name);
  return lower.ends_with(".gif") || lower.ends_with(".jpg");
}

}  // namespace

frmGallery::frmGallery(const GalleryPorts& ports, std::string programFolder, SubmenuCarryOver& carryOver,
                       Kind selectedKind, std::function<void(StyleScope, const MenuStyle&)> apply)
    : Form("frmGallery", "Style Gallery"),
      ports_(ports),
      programFolder_(std::move(programFolder)),
      carryOver_(carryOver),
      apply_(std::move(apply)) {
  bind();
  cancelButton = btnCancel.name;
  Timer1.interval = 3000;
  FillStyleList();
  setOption(Option1);
  (selectedKind == Kind::Item ? Option2 : Option3).enabled = false;
}

void frmGallery::bind() {
  cboStyle.event = [this] { cboStyle_Click(); };
  WebBrowser.event = [this] { WebBrowser_DocumentComplete(); };
  WebBrowser.reload = [this] { cboStyle_Click(); };
  Timer1.event = [this] { Timer1_Timer(); };
  Option1.frame = Option2.frame = Option3.frame = &Frame1;
  btnApply.event = [this] { btnApply_Click(); };
  btnCancel.event = [this] { Close(); };
  btnDeleteStyle.event = [this] { btnDeleteStyle_Click(); };
  Label4.event = [this] { OpenWithShell(ports_.opener, Label4.text); };
}

void frmGallery::FillStyleList() {
  cboStyle.list = styleNames(ports_.files, programFolder_);
  cboStyle.selected.clear();
  cboStyle.text.clear();
}

void frmGallery::Form_Activate() {
  if (cboStyle.list.empty()) {
    navigate(WebBrowser, programFolder_ + "\\nostyles.html");
    for (auto* control : {&btnApply, &Frame1, &Option1, &Option2, &Option3, &btnDeleteStyle})
      control->enabled = false;
  } else if (cboStyle.selected.empty()) {
    choose(cboStyle, {0});
  }
}

void frmGallery::readSelected() {
  StyleInvalid = false;
  isWhole_ = true;
  ReadNotes notes;
  try {
    StyleInvalid = !ReadStyleFile(ports_.files, programFolder_, cboStyle.text, carryOver_, style_, notes);
  } catch (const FileError& error) {
    ports_.asker.noteFailure(error.finding());
    const bool wasOpened = error.finding().place.line != 0;
    StyleInvalid = !wasOpened;  // a style that is only partly readable is shown
    isWhole_ = false;
  }
  for (const auto& note : notes.findings) ports_.asker.noteFailure(note);
}

void frmGallery::cboStyle_Click() {
  readSelected();
  Frame1.enabled = !StyleInvalid;
  btnApply.enabled = !StyleInvalid && isWhole_;  // part of a style would overwrite a complete one
  if (StyleInvalid) {
    navigate(WebBrowser, programFolder_ + "\\invalidstyle.html");
    return;
  }
  Timer1.value = false;
  ApplyStyleToSample(sample_, style_);
  CreatePreviewFile();
}

void frmGallery::noteFailures(const StepReport& report) {
  for (const auto& finding : report.findings) ports_.asker.noteFailure(finding);
}

void frmGallery::CreatePreviewFile() {
  const auto folder = galleryFolder(programFolder_);
  StepReport report;
  FileSteps steps(ports_.previews, report, folder);
  const auto lock = ports_.previews.lock(std::array{folder});
  const auto data = folder + "\\nbrData";
  for (const auto& file : ports_.previews.filesIn(data)) {
    if (isOldPicture(file)) steps.remove(joinPath(data, file));
  }
  steps.makeFolder(data);
  steps.generate(folder + "\\stylepreview.html", previewPage);
  const auto menu = compiledMenu(sample_, false, ports_.previews);
  const ScriptTarget target{folder, "nbrData", "nbrData", "gallery"};
  const auto script =
      ScriptMaker(steps, programFolder_).CreateMenuScript(ScriptMode::Gallery, sample_, menu.main, target);
  steps.generate(folder + "\\stylepreview.js", script + "\r\n");
  noteFailures(report);
  navigate(WebBrowser, folder + "\\stylepreview.html");
}

void frmGallery::WebBrowser_DocumentComplete() { Timer1.value = true; }

/// The timer runs until the next style is selected. Later ticks find no files to remove.
void frmGallery::Timer1_Timer() {
  StepReport report;
  FileSteps steps(ports_.previews, report);
  for (const auto* file : {"\\stylepreview.html", "\\stylepreview.js"}) {
    auto path = galleryFolder(programFolder_);
    path += file;
    if (ports_.previews.isFile(path)) steps.remove(path);
  }
  noteFailures(report);
}

void frmGallery::btnApply_Click() {
  apply_(Option1.value ? StyleScope::Menu : Option2.value ? StyleScope::Submenu : StyleScope::Item, style_);
  Close();
}

void frmGallery::btnDeleteStyle_Click() {
  const auto answer = ports_.asker.MsgBox(
      {.title = "Remove Style from Gallery",
       .text = "You are about to permanently remove the selected style from Gallery.\r\nProceed?",
       .icon = BoxIcon::Critical,
       .buttons = {BoxButton::Yes, BoxButton::No},
       .defaultButton = BoxButton::No});
  if (answer == BoxButton::Yes) {
    StepReport report;
    removeStyle(ports_.files, programFolder_, cboStyle.text, report);
    noteFailures(report);
  }
  FillStyleList();  // Quirk: even if nothing was deleted, which selects the first style
  Form_Activate();
}

}  // namespace nimbrel
