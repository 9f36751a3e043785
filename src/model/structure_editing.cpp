#include "model/structure_editing.h"

#include <algorithm>
#include <stdexcept>
#include <unordered_map>
#include <unordered_set>
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
  bool hasSubmenu = target.Child() != nullptr;
  for (const Node* root : rootsOf(clipboard)) {
    if (kindOf(root->Key) != Kind::Submenu) continue;
    if (isContainer(target.Key)) return &submenuOnMenu;
    if (hasSubmenu) return &secondSubmenu;
    hasSubmenu = true;
  }
  return nullptr;
}

Nodes rootsOf(const Clipboard& clipboard) {
  Nodes roots;
  for (const Node* root = clipboard.tvCopyTree.root(); root != nullptr; root = root->Next())
    roots.push_back(root);
  return roots;
}

Nodes topmost(const Document& document, const Nodes& nodes) {
  const std::unordered_set<const Node*> wanted(nodes.begin(), nodes.end());
  Nodes top;
  for (const Node* node = document.tvTreeView.root(); node != nullptr && top.size() < wanted.size();) {
    const bool isWanted = wanted.contains(node);
    if (isWanted) top.push_back(node);
    node = isWanted ? followingPastChildren(node) : following(node);
  }
  return top;
}

void CopySubtrees(const Document& document, const Nodes& nodes, Clipboard& clipboard) {
  clipboard = {};
  Tree& tree = clipboard.tvCopyTree;
  for (const Node* top : nodes) {
    for (const Node* node = top; node != nullptr; node = following(node, top)) {
      if (node == top) {
        tree.addRoot(node->Key, node->Text);
      } else {
        tree.add(*tree.find(node->Parent()->Key), Relationship::Child, node->Key, node->Text);
      }
      if (const auto* element = document.element(*node)) clipboard.CopyColl.add(node->Key, clone(*element));
    }
  }
}

namespace {

/// A part of the clipboard under new keys, the first of which is `counter`.
Insertion copied(const Clipboard& clipboard, const Node* source, NodePlace place, std::int16_t counter) {
  Insertion insertion{{}, std::move(place), counter};
  std::unordered_map<const Node*, std::size_t> positions;
  for (const Node* node = source; node != nullptr; node = following(node, source)) {
    if (insertion.counter == Document::largestKeyNumber) break;
    positions.emplace(node, insertion.subtree.entries.size());
    auto& entry = insertion.subtree.entries.emplace_back(Subtree::Entry{
        node->Key.substr(0, 1) + std::to_string(insertion.counter++), node->Text, 0, std::nullopt});
    if (node != source) entry.parent = positions.at(node->Parent());
    if (const auto* element = clipboard.CopyColl.find(node->Key)) entry.element = clone(*element);
  }
  return insertion;
}

/// `placeOfRoot` returns the place for each root of the clipboard.
template <class F>
Insertions insertions(const Document& document, const Clipboard& clipboard, F&& placeOfRoot) {
  Insertions all;
  auto counter = document.NextKeyNumber;
  for (const Node* root : rootsOf(clipboard)) {
    auto insertion = copied(clipboard, root, placeOfRoot(*root), counter);
    if (insertion.subtree.empty()) break;
    counter = insertion.counter;
    all.push_back(std::move(insertion));
  }
  return all;
}

/// Whether `node` is `top` or hangs from it.
bool isWithin(const Node* node, const Node* top) {
  while (node != nullptr && node != top) node = node->Parent();
  return node != nullptr;
}

bool isKind(const Node& node, Kind kind) { return kindOf(node.Key) == kind; }

std::optional<NodePlace> placeForItems(const Node& target, Drop drop) {
  if (drop == Drop::Into) {
    if (isContainer(target.Key)) return NodePlace{target.Key, ""};
    const Node* submenu = target.Child();
    return submenu == nullptr ? std::nullopt : std::optional(NodePlace{submenu->Key, ""});
  }
  if (!isKind(target, Kind::Item) || target.Parent() == nullptr) return std::nullopt;
  return drop == Drop::Before ? NodePlace{target.Parent()->Key, target.Key} : placeOf(target);
}

}  // namespace

Insertions pastedSubtrees(const Document& document, const Node& target, const Clipboard& clipboard) {
  const bool isItem = isKind(target, Kind::Item);
  if (isItem && target.Parent() == nullptr &&
      std::ranges::any_of(rootsOf(clipboard), [](const Node* root) { return isKind(*root, Kind::Item); })) {
    return {};
  }
  return insertions(document, clipboard, [&](const Node& root) {
    return isItem && isKind(root, Kind::Item) ? placeOf(target) : NodePlace{target.Key, ""};
  });
}

Insertions insertionsAt(const Document& document, const NodePlace& place, const Clipboard& clipboard) {
  return insertions(document, clipboard, [&](const Node&) { return place; });
}

bool isCut(const Document& document, const Insertions& pasted, const Clipboard& clipboard) {
  std::size_t count = 0;
  for (const auto& one : pasted) count += one.subtree.entries.size();
  const auto counter = pasted.empty() ? document.NextKeyNumber : pasted.back().counter;
  return counter == Document::largestKeyNumber && count < clipboard.tvCopyTree.size();
}

Node* PasteSubtrees(Document& document, Node& target, const Clipboard& clipboard) {
  auto pasted = pastedSubtrees(document, target, clipboard);
  const bool lacksNumbers = isCut(document, pasted, clipboard);
  Node* first = nullptr;
  for (auto& one : pasted) {
    Node& top = putIn(document, std::move(one));
    if (first == nullptr) first = &top;
  }
  if (lacksNumbers) throwUsedUp();
  return first;
}

std::optional<NodePlace> dropPlace(const Nodes& nodes, const Node& target, Drop drop) {
  if (nodes.empty()) return std::nullopt;
  if (std::ranges::all_of(nodes, [](const Node* node) { return isKind(*node, Kind::Item); })) {
    return placeForItems(target, drop);
  }
  const bool isSubmenu = nodes.size() == 1 && isKind(*nodes.front(), Kind::Submenu);
  if (!isSubmenu || drop != Drop::Into || !isKind(target, Kind::Item) || target.Child() != nullptr) {
    return std::nullopt;
  }
  return NodePlace{target.Key, ""};
}

std::optional<NodePlace> movePlace(const Nodes& nodes, const Node& target, Drop drop) {
  auto place = dropPlace(nodes, target, drop);
  if (!place) return std::nullopt;
  const auto isMoved = [&](const Node* node) { return std::ranges::find(nodes, node) != nodes.end(); };
  for (const Node* node : nodes) {
    if (node != &target && isWithin(&target, node)) return std::nullopt;
    if (node == &target && drop == Drop::Into) return std::nullopt;
  }
  const Node* parent = target.Key == place->parent ? &target
                       : drop == Drop::Into        ? target.Child()
                                                   : target.Parent();
  const Node* next = drop == Drop::Into ? nullptr : drop == Drop::Before ? &target : target.Next();
  while (next != nullptr && isMoved(next)) next = next->Next();
  place->next = next == nullptr ? std::string() : next->Key;
  // They stay where they are if they are already the siblings before `next`.
  const Node* last = next != nullptr              ? next->Previous()
                     : parent->Child() == nullptr ? nullptr
                                                  : parent->Child()->LastSibling();
  auto node = nodes.rbegin();
  while (node != nodes.rend() && *node == last) {
    last = last->Previous();
    ++node;
  }
  return node == nodes.rend() ? std::nullopt : place;
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
