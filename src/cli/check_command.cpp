#include "cli/commands.h"
#include "compiler/inspection.h"

namespace nimbrel {

ExitStatus checkCommand(const Console& console, const FileSystem& files, MenuInput& input) {
  Findings findings;
  try {
    input.load(files);
    findings = inspect(input.document, files, input.path);
  } catch (const FileError& error) {
    findings.push_back(error.finding());
  }
  const auto readingStatus = console.faults(input.notes.findings);
  const auto documentStatus = console.faults(findings);
  return readingStatus == done ? documentStatus : readingStatus;
}

}  // namespace nimbrel
