#include "cli/commands.h"
#include "cli/menu_input.h"
#include "platform/posix/host_paths.h"

namespace nimbrel {

ExitStatus convertCommand(const Console& console, FileSystem& files, const std::string& in,
                          const std::string& out) {
  MenuInput input(in);
  input.load(files);
  console.faults(input.notes);
  SaveMenuFile(files, fromHostPath(out), input.document);

  const Node* root = input.document.tvTreeView.root();
  if (root == nullptr || root->Next() == nullptr) return done;
  console.fault({input.path, "has more than one root; only the first was written"});
  return notAllDone;
}

}  // namespace nimbrel
