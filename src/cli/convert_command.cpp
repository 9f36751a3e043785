#include "cli/commands.h"
#include "platform/posix/host_paths.h"

namespace nimbrel {

ExitStatus convertCommand(const Console& console, FileSystem& files, MenuInput& input,
                          const std::string& out) {
  input.load(files);
  const auto target = fromHostPath(absoluteHostPath(out));
  const auto status = console.faults(input.losses());
  if (input.wouldLoseIn(files, target)) {
    console.fault({target, "was not written, because this would be lost"});
  } else {
    SaveMenuFile(files, target, input.document);
  }
  return status;
}

}  // namespace nimbrel
