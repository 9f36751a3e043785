#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "model/keyed_list.h"
#include "text/shared_text.h"

namespace nimbrel {

/// The kinds of element, told from the first letter of a key and by nothing else.
enum class Kind : char { Menu = 'M', Submenu = 'S', Item = 'I', None = 0 };

Kind kindOf(std::string_view key);

/// Where a node is added, as seen from another.
enum class Relationship { Next = 2, Previous = 3, Child = 4 };

/// One node of a tree. It lives, at one address, until it is removed.
class Node {
 public:
  std::string Key;  ///< unique in the tree; only the tree sets it
  SharedText Text;  ///< the label, which the menu file stores

  /// The name of the node's picture: "item" for items, else "menu".
  std::string_view Image() const { return kindOf(Key) == Kind::Item ? "item" : "menu"; }

  Node* Parent() const { return parent_; }
  Node* Child() const { return firstChild_; }
  Node* Next() const { return next_; }
  Node* Previous() const { return previous_; }
  Node* FirstSibling() const;
  Node* LastSibling() const;
  std::size_t Children() const { return children_; }

 private:
  friend class Tree;
  Node* parent_ = nullptr;
  Node* firstChild_ = nullptr;
  Node* lastChild_ = nullptr;
  Node* next_ = nullptr;
  Node* previous_ = nullptr;
  std::size_t children_ = 0;
};

/// Nodes with keys, in ordered levels. A well-formed document has one root; a file may bring more, which
/// stand behind the first as its siblings.
class Tree {
 public:
  Tree() = default;
  ~Tree() = default;
  Tree(const Tree& other);
  Tree& operator=(const Tree& other);
  Tree(Tree&& other) noexcept;
  Tree& operator=(Tree&& other) noexcept;

  std::size_t size() const { return nodes_.size(); }
  bool empty() const { return nodes_.empty(); }
  void reserve(std::size_t size) { nodes_.reserve(size); }
  /// The first root, none in an empty tree.
  Node* root() const { return firstRoot_; }
  Node* find(std::string_view key);
  const Node* find(std::string_view key) const;
  /// The node at a position counted from 1 in the order of adding; none past the last.
  Node* at(std::size_t position) { return nodes_.at(position); }

  /// Adds a root behind those there are. Both throw `std::invalid_argument` where the key is taken.
  Node& addRoot(std::string key, SharedText text);
  Node& add(Node& relative, Relationship relationship, std::string key, SharedText text);

  /// Moves a node with whatever hangs from it to another place, which does not lie in it.
  void move(Node& node, Node& relative, Relationship relationship);

  /// Removes the node and whatever hangs from it. A key that is not there is no error.
  void remove(std::string_view key);
  void clear();

  /// Equal keys and texts in equal places.
  bool operator==(const Tree& other) const;

 private:
  Node& create(std::string key, SharedText text);
  void place(Node& node, Node& relative, Relationship relationship);
  void link(Node& node, Node* parent, Node* previous, Node* next);
  void unlink(Node& node);

  KeyedList<Node> nodes_;
  Node* firstRoot_ = nullptr;
  Node* lastRoot_ = nullptr;
};

/// The node behind `node` when a tree is walked depth first, a node ahead of its children; none behind the
/// last. The walk stays among `top` and what hangs from it; without a `top` it goes through the whole tree.
Node* following(const Node* node, const Node* top = nullptr);

/// The same, past what hangs from `node`.
Node* followingPastChildren(const Node* node, const Node* top = nullptr);

}  // namespace nimbrel
