#include "preview/preview_page.h"

#include <algorithm>
#include <array>
#include <iterator>

#include "compiler/script_assembly.h"
#include "text/paths.h"

namespace nimbrel {
namespace {

constexpr const char* pageName = "preview.html";
constexpr const char* dataFolder = "nbrData";
/// Names the files that the last preview made, so that the next one removes only these: one path in each line,
/// relative to the preview's folder.
constexpr const char* listName = "preview-files.txt";

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

std::vector<std::string> filesOfLastPreview(const FileSystem& files, const std::string& folder,
                                            FileSteps& steps) {
  std::vector<std::string> names;
  const auto list = joinPath(folder, listName);
  if (!files.isFile(list)) return names;
  try {
    const auto lines = files.read(list);
    for (std::size_t start = 0; start < lines.size();) {
      const auto end = std::min(lines.find('\n', start), lines.size());
      names.push_back(lines.substr(start, end - start));
      start = end + 1;
    }
  } catch (const FileError& error) {
    steps.note(error.finding());
  }
  return names;
}

bool isOfPreview(const std::string& name) {
  const auto within = folderName(name);
  return !fileName(name).empty() && (within.empty() || within == dataFolder);
}

void removeLastPreview(FileSystem& files, const std::string& folder, bool withData, FileSteps& steps) {
  for (const auto& name : filesOfLastPreview(files, folder, steps)) {
    if (!isOfPreview(name) || (!withData && !folderName(name).empty())) continue;
    if (const auto path = joinPath(folder, name); files.isFile(path)) steps.remove(path);
  }
}

CompiledMenu makeFiles(FileSteps& steps, const std::string& programFolder, bool BlackPreview,
                       const Document& document) {
  const auto folder = previewFolder(programFolder);
  const auto* menu =
      document.ElementColl.empty() ? nullptr : std::get_if<MenuObj>(&document.ElementColl.begin()->second);
  const bool isPopup = menu != nullptr && menu->Collapsable == 1;
  steps.generate(previewPagePath(programFolder), pageText(isPopup, BlackPreview));
  if (document.tvTreeView.empty()) {
    steps.note({previewPagePath(programFolder), "there is no menu to show"});
    return {};
  }
  auto compiled = compiledMenu(document, false, steps.files());
  const ScriptTarget target{folder, dataFolder, dataFolder, "preview"};
  const auto script = ScriptMaker(steps, programFolder)
                          .CreateMenuScript(ScriptMode::Preview, document, compiled.main, target);
  steps.generate(folder + "\\preview.js", script + "\r\n");
  return compiled;
}

}  // namespace

std::string previewPagePath(const std::string& programFolder) {
  return previewFolder(programFolder) + '\\' + pageName;
}

CompiledMenu CreatePreviewFile(FileSystem& files, const std::string& programFolder, bool BlackPreview,
                               const Document& document, StepReport& report) {
  StepReport own;
  const auto folder = previewFolder(programFolder);
  FileSteps steps(files, own, folder);
  steps.makeFolder(folder);
  const auto lock = files.lock(std::array{folder});
  removeLastPreview(files, folder, true, steps);
  steps.makeFolder(folder + '\\' + dataFolder);

  auto compiled = makeFiles(steps, programFolder, BlackPreview, document);
  std::string list;
  for (const auto& path : own.made) list.append(path.substr(folder.size() + 1)).append("\n");
  steps.generate(joinPath(folder, listName), list);
  std::ranges::move(own.made, std::back_inserter(report.made));
  std::ranges::move(own.findings, std::back_inserter(report.findings));
  report.isComplete = report.isComplete && own.isComplete;
  return compiled;
}

void RemovePreviewPage(FileSystem& files, const std::string& programFolder, StepReport& report) {
  FileSteps steps(files, report);
  const auto folder = previewFolder(programFolder);
  if (!files.isFolder(folder)) return;
  const auto lock = files.lock(std::array{folder});
  removeLastPreview(files, folder, false, steps);
}

}  // namespace nimbrel
