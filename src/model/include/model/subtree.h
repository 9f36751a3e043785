#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "model/document.h"

/// Parts of a document outside of it, and how they get in and out. The key counter and the settings stay.
namespace nimbrel {

/// The place of a node. Other nodes are named by key, so that a place outlives their removal and return.
struct NodePlace {
  std::string parent;  ///< empty: the node is a root
  std::string next;    ///< the sibling after it; empty: it is the last

  bool operator==(const NodePlace&) const = default;
};

/// A node and its descendants with their elements.
struct Subtree {
  struct Entry {
    std::string key;
    SharedText text;
    std::size_t parent;              ///< position in `entries`; 0 for the top itself
    std::optional<Element> element;  ///< nullopt for a node of no known kind
  };
  std::vector<Entry> entries;  ///< in pre-order

  bool empty() const { return entries.empty(); }
  const std::string& key() const { return entries.front().key; }
};

/// New nodes for a document, and where they go.
struct Insertion {
  Subtree subtree;
  NodePlace place;
  std::int16_t counter;  ///< the document's key counter when they are in
};

/// The place of a node; for a node that stays where it is, the place right after it.
NodePlace placeOf(const Node& node);

/// Removes the node with that key, which must exist, and its descendants.
Subtree takeOut(Document& document, std::string_view key);

/// Adds a subtree at a place whose nodes exist. Throws `std::invalid_argument` if a key exists.
Node& putIn(Document& document, Subtree subtree, const NodePlace& place);

/// Also sets the counter.
Node& putIn(Document& document, Insertion insertion);

/// Moves a node with its descendants to a place that is not among them.
void moveTo(Document& document, Node& node, const NodePlace& place);

}  // namespace nimbrel
