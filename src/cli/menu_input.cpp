#include "cli/menu_input.h"

#include "platform/posix/host_paths.h"
#include "text/paths.h"

namespace nimbrel {

MenuInput::MenuInput(const std::string& hostPath) : path(fromHostPath(absoluteHostPath(hostPath))) {}

void MenuInput::load(const FileSystem& files) {
  SubmenuCarryOver carryOver;
  // An empty folder would mean the current folder, not the root.
  const std::string folder = path.rfind('\\') == 0 ? "\\." : std::string(folderName(path));
  LoadMenuFile(files, folder, fileName(path), carryOver, document, notes);
}

}  // namespace nimbrel
