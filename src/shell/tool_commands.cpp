// The commands of the Tools and Help menus.
#include "compiler/compile.h"
#include "forms/compile_forms.h"
#include "forms/compile_properties.h"
#include "forms/link_forms.h"
#include "forms/small_forms.h"
#include "platform/settings.h"
#include "preview/preview_page.h"
#include "shell/main_window.h"
#include "text/paths.h"
#include "text/product.h"

namespace nimbrel {
namespace {

/// The report that follows says that the compile was successful, whatever has happened.
MessageBox notAllCompiled(const StepReport& report) {
  constexpr std::size_t most = 5;
  MessageBox box{
      .title = std::string(productTitle),
      .text = report.made.empty() ? "Nothing could be compiled." : "Not everything could be compiled."};
  for (const auto& finding : report.findings) {
    if (box.paths.size() == most) break;
    box.text += "\r\n\r\n" + finding.path + ": " + finding.text();
    box.paths.push_back(finding.path);
  }
  const auto more = report.findings.size() - box.paths.size();
  if (more > 0) box.text += "\r\n\r\nand " + std::to_string(more) + " more";
  return box;
}

}  // namespace

void frmMain::noteFailures(const Findings& findings) {
  for (const auto& finding : findings) ports.asker.noteFailure(finding);
}

void frmMain::CreatePreviewFile() {
  LeaveCells();
  state.WebPagePath = state.programFolder + "\\preview";
  state.WebPageName = "preview.html";
  state.altURL.clear();
  StepReport report;
  numbers = numbersByKey(nimbrel::CreatePreviewFile(ports.previews, state.programFolder, browser.BlackPreview,
                                                    document, report));
  noteFailures(report.findings);
  browser.Show();
  browser.RefreshPreview();
}

void frmMain::mnuToolsPreview() { CreatePreviewFile(); }

/// Asks for a file until its name is valid, and before replacing a file. Quirk: the document keeps the choice even if
/// the author cancels later, and is not marked as changed.
std::optional<std::string> frmMain::chooseCompiledFile() {
  const auto& settings = document.settings;
  while (true) {
    const auto chosen = ports.asker.chooseFile(
        {.kind = FileDialog::Save,
         .title = "Compile Menu As",
         .filter = "Javascript files (*.js)|*.js",
         .folder = settings.CompiledPath,
         .name = settings.CompiledName.empty() ? "" : settings.CompiledPath + '\\' + settings.CompiledName});
    if (!chosen) return std::nullopt;
    editor.setCompileTarget(std::string(folderName(*chosen)), std::string(fileName(*chosen)));
    const auto* refusal = refusalOfCompiledName(settings.CompiledName);
    if (refusal == nullptr) break;
    ports.asker.MsgBox(warning(*refusal));
  }
  const auto path = settings.CompiledPath + '\\' + settings.CompiledName;
  if (!ports.files.isFile(path)) return path;
  const auto answer = ports.asker.MsgBox({.title = "Compile Menu",
                                          .text = path + " already exists.\rDo you want to replace it?",
                                          .buttons = {BoxButton::Yes, BoxButton::No},
                                          .defaultButton = BoxButton::No,
                                          .paths = {path}});
  return answer == BoxButton::Yes ? std::optional(path) : std::nullopt;
}

void frmMain::mnuToolsCompileMenu() {
  if (!settings::DontShowCompileWarning.readFlag(ports.settings)) {
    frmCompileMenuWarning form(ports.settings, ports.help);
    ports.asker.ShowModal(form);
  }
  if (!chooseCompiledFile()) return;
  LeaveCells();
  StepReport report;
  const auto* refusal = refusalOfFolders(document.settings);
  if (refusal == nullptr) refusal = refusalOfCompile(document);
  if (refusal != nullptr) {
    report.findings.push_back({joinPath(document.settings.CompiledPath, document.settings.CompiledName),
                               std::string(refusal->text)});
    report.isComplete = false;
  } else {
    // A copy, because the window goes on to read its document meanwhile.
    const auto compile = [&, copy = document] {
      numbers = numbersByKey(CompileMenu(ports.files, state.programFolder, copy, report));
    };
    ports.aside ? ports.aside(compile) : compile();
  }
  noteFailures(report.findings);
  if (!report.isComplete) ports.asker.MsgBox(notAllCompiled(report));
  const auto link = [this](std::string_view menu, std::string_view submenus) {
    startLinking(menu, submenus);
  };
  if (document.settings.nbrSubmenusFrame.empty()) {
    frmCompileCompleted form(document.settings, link);
    ports.asker.ShowModal(form);
  } else {
    frmCompileCompletedCF form(document.settings, link);
    ports.asker.ShowModal(form);
  }
}

LinkPorts frmMain::linkPorts() { return {ports.files, ports.asker, ports.help, ports.opener}; }

void frmMain::startLinking(std::string_view menu, std::string_view submenus) {
  frmInsertIntoWebPage1 form(linkPorts(), state.LastWebPageDir, menu, submenus);
  ports.asker.ShowModal(form);
}

void frmMain::mnuToolsInsertMenuIntoWebpage() {
  const auto& settings = document.settings;
  frmInsertIntoWebPage0 form(
      linkPorts(), state.LastWebPageDir,
      settings.CompiledName.empty() ? "" : settings.CompiledPath + '\\' + settings.CompiledName);
  ports.asker.ShowModal(form);
}

void frmMain::mnuToolsCompileProperties() {
  frmCompileProperties form(ports.asker, ports.help, document.settings, [this](CompileSettings settings) {
    Edit edit("Compile Properties");
    edit.set(document, std::move(settings));
    apply(std::move(edit));
  });
  ports.asker.ShowModal(form);
}

void frmMain::mnuToolsShowTipOnStartup() {
  auto& checked = commands.entry("mnuToolsShowTipOnStartup").checked;
  checked = !checked;
  settings::ShowTips.write(ports.settings, checked ? "True" : "False");
}

void frmMain::mnuToolsShowPreviewOnStartup() {
  auto& checked = commands.entry("mnuToolsShowPreviewOnStartup").checked;
  checked = !checked;
  settings::ShowPreview.write(ports.settings, checked ? "True" : "False");
}

void frmMain::mnuHelpTipOfTheDay() {
  frmTip form(ports.files, ports.settings, ports.random, state.programFolder,
              [this](bool on) { commands.entry("mnuToolsShowTipOnStartup").checked = on; });
  ports.asker.ShowModal(form);
}

void frmMain::mnuHelpAbout() {
  frmAbout form(ports.opener);
  ports.asker.ShowModal(form);
}

}  // namespace nimbrel
