#include "preview/preview_page.h"

#include "compiler/script_assembly.h"

namespace nimbrel {
namespace {

constexpr const char* pageName = "preview.html";
constexpr const char* dataFolder = "nbrData";

std::string previewFolder(const std::string& programFolder) { return programFolder + "\\preview"; }

/// The text that tells the author of a popup menu how to open it.
/// Quirk: the property's name is written once with entities and once as raw text.
std::string popupNotice(bool BlackPreview) {
  const std::string colour = BlackPreview ? "#ffffff" : "#000000";
  return "<font color=\"" + colour +
         "\">\r\n"
         "The &lt;PopUp&gt; property is set to \"yes\". This means that your menu remains hidden and it only "
         "appears upon a specific Javascript function call. For more info refer to the HELP section of the "
         "<PopUp> "
         "property. To see this capability in action, please move your mouse "
         "<a href='#' onmouseover=\"nbrShowMenu('preview')\">here</a>.\r\n"
         "</font>\r\n";
}

std::string pageText(bool isPopup, bool BlackPreview) {
  std::string page = "<HTML>\r\n";
  page += BlackPreview ? "<BODY BACKGROUND=\"../preview-back-black.jpg\">\r\n"
                       : "<BODY BACKGROUND=\"../preview-back.jpg\">\r\n";
  if (isPopup) page += popupNotice(BlackPreview);
  page +=
      "<img name='nbrMenuPathImg-preview' id='nbrMenuPathImg-preview' src='./nbrmenupath.gif' "
      "style='position:absolute;' width=1000 height=1>\r\n"
      "<script>var nbrAltUrl='';</script>\r\n"
      "<script src='./preview.js' language='JavaScript1.2' type='text/javascript'></script>\r\n"
      "<script>nbrBuildMenu();</script>\r\n";
  // Makes the page long enough to scroll.
  constexpr int lines = 2;
  constexpr int breaks = 17;
  for (int line = 0; line < lines; ++line) {
    for (int i = 0; i < breaks; ++i) page += "<BR>";
    page += "\r\n";
  }
  return page + "</BODY>\r\n</HTML>\r\n";
}

}  // namespace

std::string previewPagePath(const std::string& programFolder) {
  return previewFolder(programFolder) + '\\' + pageName;
}

void CreatePreviewFile(FileSystem& files, const std::string& programFolder, bool BlackPreview,
                       Document& document, StepReport& report) {
  FileSteps steps(files, report);
  const auto folder = previewFolder(programFolder);
  const auto data = folder + '\\' + dataFolder;
  steps.removeFilesIn(data);
  steps.removeFilesIn(folder);
  steps.makeFolder(folder);
  steps.makeFolder(data);

  const auto* menu =
      document.ElementColl.empty() ? nullptr : std::get_if<MenuObj>(&document.ElementColl.begin()->second);
  const bool isPopup = menu != nullptr && menu->Collapsable == 1;
  steps.generate(previewPagePath(programFolder), pageText(isPopup, BlackPreview));
  if (document.tvTreeView.empty()) {
    report.findings.push_back({previewPagePath(programFolder), "there is no menu to show"});
    return;
  }
  const ScriptTarget target{folder, dataFolder, dataFolder, "preview"};
  const auto script =
      ScriptMaker(steps, programFolder).CreateMenuScript(ScriptMode::Preview, document, target, true);
  steps.generate(folder + "\\preview.js", script + "\r\n");
}

}  // namespace nimbrel
