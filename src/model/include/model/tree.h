#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "model/keyed_list.h"
#include "text/shared_text.h"

namespace nimbrel {

/// The kinds of element. The first letter of a key alone decides the kind.
enum class Kind : char { Menu = 'M', Submenu = 'S', Item = 'I', None = 0 };

Kind kindOf(std::string_view key);

/// The place of a new node relative to another.
enum class Relationship { Next = 2, Previous = 3, Child = 4 };

/// One node of a tree. It keeps its address until it is removed.
class Node {
 public:
  std::string Key;  ///< unique in the tree; set only by the tree
  SharedText Text;  ///< the label, stored in the menu file

  /// The name of the node's icon: "item" for items, else "menu".
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

/// An ordered tree of nodes with keys. A well-formed document has one root. A file may bring more, which are
/// siblings of the first.
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
  /// The first root, or nullptr in an empty tree.
  Node* root() const { return firstRoot_; }
  Node* find(std::string_view key);
  const Node* find(std::string_view key) const;
  /// The node at a position, counted from 1 in order of insertion, or nullptr if out of range.
  Node* at(std::size_t position) { return nodes_.at(position); }
  const Node* at(std::size_t position) const { return nodes_.at(position); }

  /// Add a node: as the last root, or next to another. Throw `std::invalid_argument` if the key exists.
  Node& addRoot(std::string key, SharedText text);
  Node& add(Node& relative, Relationship relationship, std::string key, SharedText text);

  /// Moves a node with its descendants to another place. `relative` must not be one of them.
  void move(Node& node, Node& relative, Relationship relationship);

  /// Removes a node and its descendants. Does nothing if the key does not exist.
  void remove(std::string_view key);
  void clear();

  /// Compares keys, texts and places.
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

/// The node after `node` in pre-order, or nullptr after the last. The walk covers `top` and its descendants,
/// or the whole tree if `top` is nullptr.
Node* following(const Node* node, const Node* top = nullptr);

/// The same, but skips the descendants of `node`.
Node* followingPastChildren(const Node* node, const Node* top = nullptr);

}  // namespace nimbrel
