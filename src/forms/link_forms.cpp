#include "forms/link_forms.h"

#include <algorithm>
#include <utility>

#include "linking/compiled_build.h"
#include "linking/link_pages.h"
#include "text/ascii.h"
#include "text/paths.h"

namespace nimbrel {
namespace {

constexpr std::string_view linkCaption = "Link Compiled Menu to Web Page(s)";
constexpr std::string_view secondPass = "qqqqq";  // only marks the second of two passes
constexpr int linkTopic = 1700;
constexpr int altUrlTopic = 1900;
constexpr int olderVersionTopic = 2400;

bool isPage(std::string_view name) {
  const auto lower = lowered(name);
  return lower.ends_with(".htm") || lower.ends_with(".html");
}

}  // namespace

frmInsertIntoWebPage1::frmInsertIntoWebPage1(const LinkPorts& ports, std::string& LastWebPageDir,
                                             std::string_view compiled, std::string_view submenus)
    : Form("frmInsertIntoWebPage1", linkCaption), ports_(ports), LastWebPageDir_(LastWebPageDir) {
  bind();
  cancelButton = cmdCancel.name;
  lblMenuDestination.text = compiled;
  lblSubmenusDestination.text = submenus;
  Drive1.visible = false;
  Combo1.list = {"HTML files (*.html; *.htm)", "All Files (*.*)"};
  Combo1.selected = {0};
  Combo1.text = Combo1.list.front();
  File1.manyAtOnce = List1.manyAtOnce = true;
  txtAltUrl.enabled = cmdLink.enabled = false;
  Dir1.text = LastWebPageDir_.empty() ? std::string(folderName(compiled)) : LastWebPageDir_;
  listFiles();
}

void frmInsertIntoWebPage1::bind() {
  Dir1.event = [this] { Dir1_Change(); };
  File1.doubleClick = cmbAddToList.event = [this] { cmbAddToList_Click(); };
  Combo1.event = [this] { Combo1_Click(); };
  cmbRemoveFromList.event = [this] { cmbRemoveFromList_Click(); };
  chkAltUrl.event = [this] { chkAltUrl_Click(); };
  cmdLink.event = [this] { cmdLink_Click(); };
  cmdCancel.event = [this] { Close(); };
  cmdHelp.event = [this] { ports_.help.openTopic(linkTopic); };
  cmdHelpAltUrl.event = [this] { ports_.help.openTopic(altUrlTopic); };
}

void frmInsertIntoWebPage1::Dir1_Change() {
  LastWebPageDir_ = Dir1.text;
  listFiles();
}

void frmInsertIntoWebPage1::Combo1_Click() { listFiles(); }

void frmInsertIntoWebPage1::listFiles() {
  File1.list = ports_.files.filesIn(Dir1.text);
  if (Combo1.selected != std::vector<std::size_t>{1}) {
    std::erase_if(File1.list, [](const std::string& file) { return !isPage(file); });
  }
  File1.selected.clear();
  File1.text.clear();
}

void frmInsertIntoWebPage1::cmbAddToList_Click() {
  std::ranges::sort(File1.selected);
  for (const auto position : File1.selected) {
    const auto& folder = Dir1.text;
    auto page =
        folder.ends_with('\\') ? folder + File1.list[position] : joinPath(folder, File1.list[position]);
    if (std::ranges::find(List1.list, page) == List1.list.end()) List1.list.push_back(std::move(page));
  }
  if (!List1.list.empty()) cmdLink.enabled = true;
}

void frmInsertIntoWebPage1::cmbRemoveFromList_Click() {
  auto positions = std::exchange(List1.selected, {});
  std::ranges::sort(positions, std::greater{});
  for (const auto position : positions)
    List1.list.erase(List1.list.begin() + static_cast<std::ptrdiff_t>(position));
  List1.text.clear();
  if (List1.list.empty()) cmdLink.enabled = false;
}

void frmInsertIntoWebPage1::chkAltUrl_Click() {
  if (chkAltUrl.value) {
    txtAltUrl.text = savedAltUrl_;
    toFocus = &txtAltUrl;
  } else {
    savedAltUrl_ = std::exchange(txtAltUrl.text, {});
  }
  txtAltUrl.enabled = chkAltUrl.value;
}

void frmInsertIntoWebPage1::cmdLink_Click() {
  reportUnlinked(LinkPages(ports_.files, lblMenuDestination.text, List1.list, txtAltUrl.text));
  if (lblSubmenusDestination.text.empty()) {
    offerPreview();
  } else if (lblSubmenusDestination.text == secondPass) {
    ports_.asker.MsgBox(
        warning({"Menu linked successfully!", "The compiled menu has been linked to the selected pages."}));
    Close();
  } else {
    goOnWithSubmenus();
  }
}

/// Lists the pages that were not changed in one message box.
void frmInsertIntoWebPage1::reportUnlinked(const Findings& findings) {
  if (findings.empty()) return;
  MessageBox box{.title = std::string(linkCaption),
                 .text = "These pages could not be linked and are as they were:"};
  for (const auto& finding : findings) {
    box.text += "\r\n" + finding.path + ": " + finding.text();
    box.paths.push_back(finding.path);
  }
  ports_.asker.MsgBox(box);
}

void frmInsertIntoWebPage1::goOnWithSubmenus() {
  const auto submenus = lblSubmenusDestination.text;
  Close();
  frmInsertIntoWebPage1 next(ports_, LastWebPageDir_, submenus, secondPass);
  ports_.asker.MsgBox(
      {.title = "Main Menu linked, please link Submenus",
       .text = "Since you have enabled the Cross-Frame support the menu has been split in two files.\r\n"
               "Please link the second file to the pages that will contain the submenus",
       .icon = BoxIcon::Information});
  ports_.asker.ShowModal(next);
}

void frmInsertIntoWebPage1::offerPreview() {
  const auto answer =
      ports_.asker.MsgBox({.title = "Menu linked successfully!",
                           .text = "The compiled menu has been linked to the selected pages.\r\n"
                                   "Do you want to preview those pages in your browser?",
                           .icon = BoxIcon::Question,
                           .buttons = {BoxButton::Yes, BoxButton::No}});
  Close();
  if (answer != BoxButton::Yes) return;
  frmPreviewPages pages(ports_.opener, List1.list);
  ports_.asker.ShowModal(pages);
}

frmInsertIntoWebPage0::frmInsertIntoWebPage0(const LinkPorts& ports, std::string& LastWebPageDir,
                                             std::string_view lastCompiled)
    : Form("frmInsertIntoWebPage0", linkCaption),
      ports_(ports),
      LastWebPageDir_(LastWebPageDir),
      lastCompiled_(lastCompiled) {
  txtMenuDestination.event = [this] { txtMenuDestination_Change(); };
  cmdBrowse.event = [this] { cmdBrowse_Click(); };
  cmdOk.event = [this] { cmdOk_Click(); };
  cmdCancel.event = [this] { Close(); };
  cmdHelp.event = [this] { ports_.help.openTopic(linkTopic); };
  cancelButton = cmdCancel.name;
  txtMenuDestination.text = lastCompiled;
  txtMenuDestination_Change();
}

void frmInsertIntoWebPage0::txtMenuDestination_Change() { cmdOk.enabled = !txtMenuDestination.text.empty(); }

void frmInsertIntoWebPage0::cmdBrowse_Click() {
  const bool start = ports_.files.isFile(lastCompiled_);
  const auto chosen = ports_.asker.chooseFile({.kind = FileDialog::Open,
                                               .title = "Choose compiled menu file",
                                               .filter = "Javascript files (*.js)|*.js",
                                               .folder = start ? std::string(folderName(lastCompiled_)) : "",
                                               .name = start ? lastCompiled_ : ""});
  if (chosen) enter(txtMenuDestination, *chosen);
}

void frmInsertIntoWebPage0::cmdOk_Click() {
  const auto path = txtMenuDestination.text;
  if (!ports_.files.isFile(path)) {
    ports_.asker.MsgBox({.title = "File not found",
                         .text = path + " cannot be found.\r\nPlease specify an existing file.",
                         .paths = {path}});
    return;
  }
  std::string script;
  try {
    script = ports_.files.read(path);
  } catch (const FileError& error) {
    ports_.asker.MsgBox(
        {.title = std::string(linkCaption), .text = path + ": " + error.finding().text(), .paths = {path}});
    return;
  }
  if (const auto* refusal = refusalOfCompiledMenu(script)) {
    auto box = warning(*refusal);
    box.buttons = {BoxButton::OK, BoxButton::Help};
    box.helpTopic = olderVersionTopic;
    ports_.asker.MsgBox(box);
    Close();
    return;
  }
  frmInsertIntoWebPage1 next(ports_, LastWebPageDir_, path, "");
  Close();
  ports_.asker.ShowModal(next);
}

frmPreviewPages::frmPreviewPages(Opener& opener, std::vector<std::string> pages)
    : Form("frmPreviewPages", "Preview Web Pages"), opener_(opener) {
  List1.list = std::move(pages);
  List1.doubleClick = cmdPreview.event = [this] { cmdPreview_Click(); };
  cmdClose.event = [this] { Close(); };
  cancelButton = cmdClose.name;
}

void frmPreviewPages::cmdPreview_Click() {
  if (!List1.text.empty()) OpenWithShell(opener_, List1.text);
}

}  // namespace nimbrel
