#include "compiler/compiled_menu.h"

#include "compiler/image_collection.h"
#include "compiler/style_strings.h"

namespace nimbrel {
namespace {

void fillElements(const Document& document, const Node& top, CompiledGroup& group) {
  auto& elements = group.elements;
  std::vector<std::size_t> open;  // the positions of the nodes above the next one
  const auto close = [&] {
    elements[open.back()].below = elements.size() - open.back() - 1;
    open.pop_back();
  };
  for (const Node* node = &top; node != nullptr; node = following(node, &top)) {
    while (!open.empty() && elements[open.back()].node != node->Parent()) close();
    open.push_back(elements.size());
    elements.push_back({node, document.element(*node), 0, {}});
  }
  while (!open.empty()) close();
}

CompiledGroup groupOf(const Document& document, const Node& top, bool includesSubmenus,
                      PictureFolder& folder) {
  CompiledGroup group;
  group.includesSubmenus = includesSubmenus;
  fillElements(document, top, group);
  CollectImages(document, folder, group);
  CollectStyles(group);
  return group;
}

}  // namespace

CompiledMenu compiledMenu(const Document& document, bool submenusInFrame, const FileSystem& pictures) {
  CompiledMenu menu;
  const Node& root = *document.tvTreeView.root();
  PictureFolder folder(pictures, menu.main);
  menu.main.groups.push_back(groupOf(document, root, !submenusInFrame, folder));
  if (!submenusInFrame) return menu;
  PictureFolder folderOfSubmenus(pictures, menu.submenus);
  for (const Node* item = root.Child(); item != nullptr; item = item->Next()) {
    if (item->Child() != nullptr) {
      menu.submenus.groups.push_back(groupOf(document, *item->Child(), true, folderOfSubmenus));
    }
  }
  return menu;
}

KeyedNumbers numbersByKey(const CompiledMenu& menu) {
  KeyedNumbers numbers;
  for (const auto* script : {&menu.main, &menu.submenus}) {
    for (const auto& group : script->groups) {
      for (const auto& one : group.elements) numbers.emplace_back(one.node->Key, one.numbers);
    }
  }
  return numbers;
}

}  // namespace nimbrel
