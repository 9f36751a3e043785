#include "cli/console.h"

#include <algorithm>
#include <ostream>

#include "platform/posix/host_paths.h"
#include "text/windows1252.h"

namespace nimbrel {

void Console::printText(std::string_view oneByteText) const { out_ << toUtf8(oneByteText) << '\n'; }

void Console::printPath(std::string_view documentPath) const { out_ << toHostPath(documentPath) << '\n'; }

void Console::fault(const Finding& finding) const {
  err_ << "nbrc: " << toHostPath(finding.path) << ": ";
  if (finding.severity == Severity::Warning) err_ << "warning: ";
  err_ << toUtf8(finding.text()) << '\n';
}

void Console::fault(std::string_view documentPath, const Message& message) const {
  std::string line;
  for (const char c : message.text) {
    if (c != '\r' && c != '\n') {
      line += c;
    } else if (!line.ends_with(' ')) {
      line += ' ';
    }
  }
  fault({std::string(documentPath), line});
}

ExitStatus Console::faults(const Findings& findings) const {
  for (const auto& finding : findings) fault(finding);
  const bool hasError = std::ranges::any_of(
      findings, [](const Finding& finding) { return finding.severity == Severity::Error; });
  return hasError ? notAllDone : done;
}

void Console::warnings(Findings findings) const {
  for (auto& finding : findings) {
    finding.severity = Severity::Warning;
    fault(finding);
  }
}

}  // namespace nimbrel
