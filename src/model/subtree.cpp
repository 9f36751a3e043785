#include "model/subtree.h"

#include <unordered_map>
#include <utility>

namespace nimbrel {

NodePlace placeOf(const Node& node) {
  NodePlace place;
  if (node.Parent() != nullptr) place.parent = node.Parent()->Key;
  if (node.Next() != nullptr) place.next = node.Next()->Key;
  return place;
}

Subtree takeOut(Document& document, std::string_view key) {
  Subtree subtree;
  const Node* top = document.tvTreeView.find(key);
  std::unordered_map<const Node*, std::size_t> positions;
  for (const Node* node = top; node != nullptr; node = following(node, top)) {
    positions.emplace(node, subtree.entries.size());
    auto& entry = subtree.entries.emplace_back(Subtree::Entry{node->Key, node->Text, 0, std::nullopt});
    if (node != top) entry.parent = positions.at(node->Parent());
    if (auto* element = document.element(*node)) {
      entry.element = std::move(*element);
      document.ElementColl.remove(node->Key);
    }
  }
  document.tvTreeView.remove(subtree.key());
  return subtree;
}

Node& putIn(Document& document, Subtree subtree, const NodePlace& place) {
  auto& tree = document.tvTreeView;
  std::vector<Node*> nodes;
  nodes.reserve(subtree.entries.size());
  for (auto& entry : subtree.entries) {
    Node* node = nullptr;
    if (!nodes.empty()) {
      node = &tree.add(*nodes[entry.parent], Relationship::Child, entry.key, std::move(entry.text));
    } else if (!place.next.empty()) {
      node = &tree.add(*tree.find(place.next), Relationship::Previous, entry.key, std::move(entry.text));
    } else if (!place.parent.empty()) {
      node = &tree.add(*tree.find(place.parent), Relationship::Child, entry.key, std::move(entry.text));
    } else {
      node = &tree.addRoot(entry.key, std::move(entry.text));
    }
    nodes.push_back(node);
    if (entry.element) document.ElementColl.add(std::move(entry.key), std::move(*entry.element));
  }
  return *nodes.front();
}

Node& putIn(Document& document, Insertion insertion) {
  Node& node = putIn(document, std::move(insertion.subtree), insertion.place);
  document.NextKeyNumber = insertion.counter;
  return node;
}

void moveTo(Document& document, Node& node, const NodePlace& place) {
  auto& tree = document.tvTreeView;
  if (!place.next.empty()) {
    tree.move(node, *tree.find(place.next), Relationship::Previous);
  } else {
    tree.move(node, *tree.find(place.parent), Relationship::Child);
  }
}

}  // namespace nimbrel
