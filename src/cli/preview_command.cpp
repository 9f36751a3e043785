#include "cli/commands.h"
#include "compiler/compile.h"
#include "platform/posix/host_paths.h"
#include "platform/posix/program_folder.h"
#include "preview/preview_page.h"

namespace nimbrel {

ExitStatus previewCommand(const Console& console, FileSystem& files, const std::optional<std::string>& home,
                          MenuInput& input) {
  input.loadWarning(files, console);
  if (const auto* refusal = refusalOfCompile(input.document)) {
    console.fault(input.path, *refusal);
    return notAllDone;
  }
  const auto folder = fromHostPath(programFolder(home));
  StepReport report;
  CreatePreviewFile(files, folder, false, input.document, report);
  console.printPath(previewPagePath(folder));
  return console.faults(report.findings);
}

}  // namespace nimbrel
