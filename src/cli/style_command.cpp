#include <ostream>

#include "cli/commands.h"
#include "gallery/style_picking.h"
#include "platform/posix/host_paths.h"
#include "platform/posix/program_folder.h"
#include "text/ascii.h"
#include "text/windows1252.h"

namespace nimbrel {
namespace {

constexpr Message noStyle{"", "there is no such style in the gallery"};
constexpr Message foreignStyle{"", "the style file has an unknown version"};
constexpr Message wouldLose{"", "was not written, because this would be lost"};
constexpr Message noMenu{"", "the menu file has no main menu"};
constexpr Message noNode{"", "there is no node with that key"};
constexpr Message noScope{"", "a submenu style needs a menu or submenu, and an item style an item"};

StyleScope scopeOf(const std::string& word) {
  return word == "menu" ? StyleScope::Menu : word == "submenu" ? StyleScope::Submenu : StyleScope::Item;
}

bool fits(StyleScope scope, const Node& node) {
  const bool isItem = kindOf(node.Key) == Kind::Item;
  return scope == StyleScope::Menu || isItem == (scope == StyleScope::Item);
}

ExitStatus refuse(const Console& console, const std::string& path, const Message& reason) {
  console.fault(path, reason);
  return notAllDone;
}

}  // namespace

ExitStatus styleListCommand(const Console& console, const FileSystem& files,
                            const std::optional<std::string>& home) {
  for (const auto& name : styleNames(files, fromHostPath(programFolder(home)))) console.printText(name);
  return done;
}

ExitStatus styleCreateCommand(const Console& console, FileSystem& files,
                              const std::optional<std::string>& home, MenuInput& input,
                              const std::string& name) {
  const auto style = nameFromHost(name);
  if (const auto* refusal = refusalOfStyleName(fromUtf8(name)))
    return refuse(console, fromHostPath(name), *refusal);
  if (trimmed(style).empty()) return refuse(console, "", {"", "a style needs a name"});
  input.loadWarning(files, console);
  const Node* root = input.document.tvTreeView.root();
  const auto* menu = root == nullptr ? nullptr : input.document.get<MenuObj>(*root);
  if (menu == nullptr) return refuse(console, input.path, noMenu);
  const auto* first = root->Child() == nullptr ? nullptr : input.document.get<ItemObj>(*root->Child());
  const auto folder = fromHostPath(programFolder(home));
  StepReport report;
  SaveStyle(files, folder, style, styleOfMenu(menu, first), report);
  return console.faults(report.findings);
}

ExitStatus styleApplyCommand(const Console& console, FileSystem& files,
                             const std::optional<std::string>& home, MenuInput& input,
                             const StyleCall& call) {
  input.loadWarning(files, console);
  const auto folder = fromHostPath(programFolder(home));
  const auto path = styleFilePath(folder, nameFromHost(call.name));
  if (const auto* refusal = refusalOfStyleName(fromUtf8(call.name)))
    return refuse(console, fromHostPath(call.name), *refusal);
  if (!files.isFile(path)) return refuse(console, path, noStyle);
  SubmenuCarryOver carryOver;
  MenuStyle style;
  ReadNotes notes;
  if (!ReadStyleFile(files, folder, nameFromHost(call.name), carryOver, style, notes)) {
    return refuse(console, path, foreignStyle);
  }
  console.warnings(notes.findings);
  auto& tree = input.document.tvTreeView;
  Node* node = call.key.empty() ? tree.root() : tree.find(call.key);
  if (node == nullptr) return refuse(console, input.path, noNode);
  const auto scope = scopeOf(call.scope);
  if (!fits(scope, *node)) return refuse(console, input.path, noScope);
  const auto target = fromHostPath(absoluteHostPath(call.out));
  if (input.wouldLoseIn(files, target)) return refuse(console, target, wouldLose);
  ApplyStyle(input.document, *node, scope, style);
  SaveMenuFile(files, target, input.document);
  return done;
}

}  // namespace nimbrel
