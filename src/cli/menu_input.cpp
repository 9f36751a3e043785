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

void MenuInput::loadWarning(const FileSystem& files, const Console& console) {
  try {
    load(files);
  } catch (const FileError&) {
    console.warnings(notes.findings);
    throw;
  }
  console.warnings(notes.findings);
}

Findings MenuInput::losses() const {
  auto losses = notes.findings;
  const Node* root = document.tvTreeView.root();
  if (root != nullptr && root->Next() != nullptr) {
    losses.push_back({path, "has more than one root; only the first is written"});
  }
  return losses;
}

bool MenuInput::wouldLoseIn(const FileSystem& files, const std::string& target) const {
  return files.isFile(target) && files.isInside(path, target) && !losses().empty();
}

}  // namespace nimbrel
