#include <filesystem>

#include "cli/commands.h"
#include "compiler/compile.h"
#include "platform/posix/host_paths.h"
#include "platform/posix/program_folder.h"

namespace nimbrel {
namespace {

/// Returns the folder in document form without its last backslash, so that the root is empty.
std::string compiledFolder(const std::filesystem::path& to) {
  const auto folder = to.parent_path();
  if (folder.empty()) return ".";
  return folder == folder.root_path() ? std::string() : fromHostPath(folder.string());
}

}  // namespace

ExitStatus compileCommand(const Console& console, FileSystem& files, const std::optional<std::string>& home,
                          MenuInput& input, const std::string& to) {
  input.loadWarning(files, console);
  auto& settings = input.document.settings;
  settings.CompiledPath = compiledFolder(to);
  settings.CompiledName = fromHostPath(std::filesystem::path(to).filename().string());
  if (const auto* refusal = refusalOfCompiledName(settings.CompiledName)) {
    console.fault(fromHostPath(to), *refusal);
    return notAllDone;
  }
  if (const auto* refusal = refusalOfFolders(settings)) {
    console.fault(input.path, *refusal);
    return notAllDone;
  }
  if (const auto* refusal = refusalOfCompile(input.document)) {
    console.fault(input.path, *refusal);
    return notAllDone;
  }
  StepReport report;
  CompileMenu(files, fromHostPath(programFolder(home)), input.document, report);
  for (const auto& path : report.made) console.printPath(path);
  return console.faults(report.findings);
}

}  // namespace nimbrel
