#include "cli/commands.h"
#include "cli/json.h"

namespace nimbrel {
namespace {

void showTree(const Console& console, const Tree& tree) {
  std::size_t level = 0;
  for (const Node* node = tree.root(); node != nullptr;) {
    console.printText(std::string(2 * level, ' ') + node->Key + ' ' + node->Text.str());
    const Node* next = following(node);
    if (next == node->Child() && next != nullptr) {
      ++level;
    } else {
      for (; node != nullptr && next != nullptr && node->Parent() != next->Parent(); node = node->Parent())
        --level;
    }
    node = next;
  }
}

}  // namespace

ExitStatus showCommand(const Console& console, const FileSystem& files, MenuInput& input, bool asJson) {
  if (asJson) {
    input.loadWarning(files, console);
    printDocument(console.out(), input.document);
    return done;
  }
  try {
    input.loadWarning(files, console);
  } catch (const FileError&) {
    showTree(console, input.document.tvTreeView);  // as far as it was read
    throw;
  }
  showTree(console, input.document.tvTreeView);
  return done;
}

}  // namespace nimbrel
