#include "cli/commands.h"
#include "cli/progress_bar.h"
#include "linking/compiled_build.h"
#include "linking/link_pages.h"
#include "platform/posix/host_paths.h"
#include "text/windows1252.h"

namespace nimbrel {

ExitStatus linkCommand(const Console& console, FileSystem& files, const LinkCall& call) {
  const auto absolute = [](const std::string& path) { return fromHostPath(absoluteHostPath(path)); };
  const auto compiled = absolute(call.compiled);
  if (const auto* refusal = refusalOfCompiledMenu(files.read(compiled))) {
    console.fault(compiled, *refusal);
    return notAllDone;
  }
  std::vector<std::string> pages;
  for (const auto& page : call.pages) pages.push_back(absolute(page));

  Findings findings;
  {
    ProgressBar progress(console, pages.size());
    findings = LinkPages(files, compiled, pages, fromUtf8(call.altUrl),
                         [&progress](std::size_t pagesDone) { progress.show(pagesDone); });
  }
  return console.faults(findings);
}

}  // namespace nimbrel
