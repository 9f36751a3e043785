#include <nlohmann/json.hpp>
#include <ostream>

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

/// Element by element, so that a large document needs no more memory than it has.
void showJson(std::ostream& out, const Document& document) {
  out << "{\n";
  for (const CompileSetting& setting : compileSettings) {
    std::visit(
        [&](auto field) {
          out << "  " << Json(setting.name) << ": " << jsonOf(document.settings.*field) << ",\n";
        },
        setting.field);
  }
  out << "  \"elements\": [";
  const char* separator = "\n    ";
  for (const Node* node = document.tvTreeView.root(); node != nullptr; node = following(node)) {
    Json entry = {{"key", jsonOf(node->Key)},
                  {"parent", node->Parent() == nullptr ? Json(nullptr) : jsonOf(node->Parent()->Key)},
                  {"text", jsonOf(node->Text)}};
    const Element* element = document.element(*node);
    entry["properties"] = element == nullptr ? Json::object() : jsonOf(*element);
    out << separator << entry;
    separator = ",\n    ";
  }
  out << "\n  ]\n}\n";
}

}  // namespace

ExitStatus showCommand(const Console& console, const FileSystem& files, MenuInput& input, bool asJson) {
  if (asJson) {
    input.load(files);
    showJson(console.out(), input.document);
    return done;
  }
  try {
    input.load(files);
  } catch (const FileError&) {
    showTree(console, input.document.tvTreeView);  // what could be read is worth seeing
    throw;
  }
  showTree(console, input.document.tvTreeView);
  return done;
}

}  // namespace nimbrel
