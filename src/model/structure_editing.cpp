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

int nodesIn(const Node& top) {
  int count = 0;
  for (const Node* node = &top; node != nullptr; node = following(node, &top)) ++count;
  return count;
}

std::int16_t counterAfterMove(const Document& document, const Node& item) {
  const int counter = document.NextKeyNumber + nodesIn(item);
  if (counter > Document::largestKeyNumber) throwUsedUp();
  return static_cast<std::int16_t>(counter);
}

bool move(Document& document, Node& item, const std::optional<NodeMove>& to) {
  if (!to) return false;
  moveTo(document, item, to->place);
  document.NextKeyNumber = to->counter;
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

Insertion pastedSubtree(const Document& document, const Node& target, const Clipboard& clipboard) {
  Insertion pasted{{}, {target.Key, ""}, document.NextKeyNumber};
  const Node* source = clipboard.tvCopyTree.root();
  if (source == nullptr) return pasted;
  if (kindOf(source->Key) == Kind::Item && kindOf(target.Key) == Kind::Item) {
    if (target.Parent() == nullptr) return pasted;
    pasted.place = placeOf(target);
  }
  std::unordered_map<const Node*, std::size_t> positions;
  for (const Node* node = source; node != nullptr; node = following(node, source)) {
    if (pasted.counter == Document::largestKeyNumber) break;
    positions.emplace(node, pasted.subtree.entries.size());
    auto& entry = pasted.subtree.entries.emplace_back(Subtree::Entry{
        node->Key.substr(0, 1) + std::to_string(pasted.counter++), node->Text, 0, std::nullopt});
    if (node != source) entry.parent = positions.at(node->Parent());
    if (const auto* element = clipboard.CopyColl.find(node->Key)) entry.element = clone(*element);
  }
  return pasted;
}

bool isCut(const Insertion& pasted, const Clipboard& clipboard) {
  return pasted.counter == Document::largestKeyNumber &&
         pasted.subtree.entries.size() < clipboard.tvCopyTree.size();
}

Node* PasteSubtree(Document& document, Node& target, const Clipboard& clipboard) {
  auto pasted = pastedSubtree(document, target, clipboard);
  const bool lacksNumbers = isCut(pasted, clipboard);
  Node* node = pasted.subtree.empty() ? nullptr : &putIn(document, std::move(pasted));
  if (lacksNumbers) throwUsedUp();
  return node;
}

bool canMoveUp(const Node& item) {
  return item.Parent() != nullptr && item.Text != item.FirstSibling()->Text;
}

bool canMoveDown(const Node& item) {
  return item.Parent() != nullptr && item.Text != item.LastSibling()->Text;
}

std::optional<NodeMove> moveUp(const Document& document, const Node& item) {
  if (!canMoveUp(item) || item.Previous() == nullptr) return std::nullopt;
  return NodeMove{{item.Parent()->Key, item.Previous()->Key}, counterAfterMove(document, item)};
}

std::optional<NodeMove> moveDown(const Document& document, const Node& item) {
  if (!canMoveDown(item) || item.Next() == nullptr) return std::nullopt;
  return NodeMove{placeOf(*item.Next()), counterAfterMove(document, item)};
}

bool MoveItemUp(Document& document, Node& item) { return move(document, item, moveUp(document, item)); }
bool MoveItemDown(Document& document, Node& item) { return move(document, item, moveDown(document, item)); }

Node* neighbourOf(const Node& node) {
  if (node.Next() != nullptr) return node.Next();
  return node.Previous() != nullptr ? node.Previous() : node.Parent();
}

}  // namespace nimbrel
