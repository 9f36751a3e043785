#include "cli/commands.h"
#include "platform/posix/host_paths.h"

namespace nimbrel {

ExitStatus convertCommand(const Console& console, FileSystem& files, MenuInput& input,
                          const std::string& out) {
  input.load(files);
  console.faults(input.notes);
  SaveMenuFile(files, fromHostPath(out), input.document);

  const Node* root = input.document.tvTreeView.root();
  if (root == nullptr || root->Next() == nullptr) return done;
  console.fault({input.path, "has more than one root; only the first was written"});
  return notAllDone;
}

}  // namespace nimbrel
