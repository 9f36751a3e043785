#include "forms/compile_forms.h"

#include <utility>

#include "compiler/script_assembly.h"
#include "platform/settings.h"

namespace nimbrel {
namespace {

constexpr int warningTopic = 2340;

std::string folderPath(const CompileSettings& settings, const std::string& folder) {
  return settings.CompiledPath + '\\' + folder + '\\';
}

}  // namespace

frmCompileMenuWarning::frmCompileMenuWarning(SettingsStore& settings, HelpSystem& help)
    : Form("frmCompileMenuWarning", "Compile Menu"), settings_(settings) {
  Check1.event = [this] { Check1_Click(); };
  cmdMoreInfo.event = [&help] { help.openTopic(warningTopic); };
  cmdOk.event = [this] { Close(); };
}

void frmCompileMenuWarning::Check1_Click() {
  settings::DontShowCompileWarning.write(settings_, Check1.value ? "1" : "0");
}

CompileReport::CompileReport(std::string_view formName, std::string_view frame,
                             const CompileSettings& settings, StartLinking link)
    : Form(formName, "Menu compiled successfully!"),
      Frame1(*this, "Frame1", ControlKind::Frame, frame),
      link_(std::move(link)) {
  const auto layout = compileLayout(settings);
  menu_ = layout.menuPath;
  if (!settings.nbrSubmenusFrame.empty()) submenus_ = layout.submenusPath;
  lblMenuDir.text = folderPath(settings, layout.libraryFolder);
  lblImagesDir.text = folderPath(settings, layout.imageFolder);
  lblImageName.text = settings.CompiledPath + '\\' + std::string(pathImage);
  cmdYes.event = [this] { cmdYes_Click(); };
  cmdNo.event = [this] { Close(); };
  cancelButton = cmdNo.name;
}

void CompileReport::cmdYes_Click() {
  Close();
  link_(menu_, submenus_);
}

frmCompileCompleted::frmCompileCompleted(const CompileSettings& settings, StartLinking link)
    : CompileReport("frmCompileCompleted", "The following entities have been created:", settings,
                    std::move(link)) {
  lblMenuName.text = compileLayout(settings).menuPath;
}

frmCompileCompletedCF::frmCompileCompletedCF(const CompileSettings& settings, StartLinking link)
    : CompileReport("frmCompileCompletedCF", "Therefore, the following entities have been created:", settings,
                    std::move(link)) {
  const auto layout = compileLayout(settings);
  lblMenuName1.text = layout.menuPath;
  lblMenuName2.text = layout.submenusPath;
}

}  // namespace nimbrel
