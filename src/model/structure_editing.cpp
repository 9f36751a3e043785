#include "model/structure_editing.h"

#include <stdexcept>
#include <unordered_map>
#include <utility>

#include "model/structure.h"

namespace nimbrel {
namespace {

constexpr Message wholeMenuCopied{"Cannot copy", "You cannot cut or copy the entire menu"};
constexpr Message wholeMenuCut{"Cannot cut", "You cannot cut the entire menu"};
constexpr Message submenuOnMenu{"Cannot paste",
                                "You cannot paste a submenu on the Main Menu or on another submenu.\r"
                                "Submenus are linked to items."};
constexpr Message secondSubmenu{"Cannot paste",
                                "You cannot paste a submenu on an item that already has a submenu"};

bool isContainer(std::string_view key) { return kindOf(key) == Kind::Menu || kindOf(key) == Kind::Submenu; }

/// Adds a copy of one clipboard node to the document under a new key.
Node& paste(Document& document, Node& target, Relationship relationship, const Node& source,
            const Clipboard& clipboard) {
  auto key = source.Key.substr(0, 1) + nextKeyNumber(document);
  const auto* element = clipboard.CopyColl.find(source.Key);
  Node& node = document.tvTreeView.add(target, relationship, key, source.Text);
  if (element != nullptr) document.ElementColl.add(std::move(key), clone(*element));
  ++document.NextKeyNumber;
  return node;
}

int nodesIn(const Node& top) {
  int count = 0;
  for (const Node* node = &top; node != nullptr; node = following(node, &top)) ++count;
  return count;
}

bool move(Document& document, Node& item, Node* neighbour, Relationship relationship) {
  if (neighbour == nullptr) return false;
  const int counter = document.NextKeyNumber + nodesIn(item);
  if (counter > Document::largestKeyNumber) throwUsedUp();
  document.tvTreeView.move(item, *neighbour, relationship);
  document.NextKeyNumber = static_cast<std::int16_t>(counter);
  return true;
}

}  // namespace

const Message* refusalOfCopy(std::string_view key) {
  return kindOf(key) == Kind::Menu ? &wholeMenuCopied : nullptr;
}

const Message* refusalOfCut(std::string_view key) {
  return kindOf(key) == Kind::Menu ? &wholeMenuCut : nullptr;
}

const Message* refusalOfPaste(const Clipboard& clipboard, const Node& target) {
  if (clipboard.tvCopyTree.empty() || kindOf(clipboard.tvCopyTree.root()->Key) != Kind::Submenu)
    return nullptr;
  if (isContainer(target.Key)) return &submenuOnMenu;
  return target.Child() != nullptr ? &secondSubmenu : nullptr;
}

void CopySubtree(const Document& document, const Node& top, Clipboard& clipboard) {
  clipboard = {};
  Tree& tree = clipboard.tvCopyTree;
  for (const Node* node = &top; node != nullptr; node = following(node, &top)) {
    if (node == &top) {
      tree.addRoot(node->Key, node->Text);
    } else {
      tree.add(*tree.find(node->Parent()->Key), Relationship::Child, node->Key, node->Text);
    }
    if (const auto* element = document.element(*node)) clipboard.CopyColl.add(node->Key, clone(*element));
  }
}

Node* PasteSubtree(Document& document, Node& target, const Clipboard& clipboard) {
  const Node* source = clipboard.tvCopyTree.root();
  if (source == nullptr) return nullptr;
  const bool after = kindOf(source->Key) == Kind::Item && kindOf(target.Key) == Kind::Item;
  if (after && target.Parent() == nullptr) return nullptr;
  std::unordered_map<const Node*, Node*> pasted;
  for (const Node* node = source; node != nullptr; node = following(node, source)) {
    Node& made =
        node == source
            ? paste(document, target, after ? Relationship::Next : Relationship::Child, *node, clipboard)
            : paste(document, *pasted.at(node->Parent()), Relationship::Child, *node, clipboard);
    pasted.emplace(node, &made);
  }
  return pasted.at(source);
}

bool canMoveUp(const Node& item) {
  return item.Parent() != nullptr && item.Text != item.FirstSibling()->Text;
}

bool canMoveDown(const Node& item) {
  return item.Parent() != nullptr && item.Text != item.LastSibling()->Text;
}

bool MoveItemUp(Document& document, Node& item) {
  return canMoveUp(item) && move(document, item, item.Previous(), Relationship::Previous);
}

bool MoveItemDown(Document& document, Node& item) {
  return canMoveDown(item) && move(document, item, item.Next(), Relationship::Next);
}

Node* neighbourOf(const Node& node) {
  if (node.Next() != nullptr) return node.Next();
  return node.Previous() != nullptr ? node.Previous() : node.Parent();
}

}  // namespace nimbrel
