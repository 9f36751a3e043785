#include "model/tree.h"

#include <utility>

namespace nimbrel {

Kind kindOf(std::string_view key) {
  if (key.empty()) return Kind::None;
  switch (key.front()) {
    case 'M': return Kind::Menu;
    case 'S': return Kind::Submenu;
    case 'I': return Kind::Item;
    default: return Kind::None;
  }
}

Node* Node::FirstSibling() const {
  if (parent_ != nullptr) return parent_->firstChild_;
  const Node* node = this;
  while (node->previous_ != nullptr) node = node->previous_;
  return const_cast<Node*>(node);  // NOLINT(cppcoreguidelines-pro-type-const-cast): links are never const
}

Node* Node::LastSibling() const {
  if (parent_ != nullptr) return parent_->lastChild_;
  const Node* node = this;
  while (node->next_ != nullptr) node = node->next_;
  return const_cast<Node*>(node);  // NOLINT(cppcoreguidelines-pro-type-const-cast): links are never const
}

Tree::Tree(const Tree& other) : nodes_(other.nodes_) {
  const auto mine = [this](const Node* node) { return node == nullptr ? nullptr : find(node->Key); };
  for (auto& [key, node] : nodes_) {
    node.parent_ = mine(node.parent_);
    node.firstChild_ = mine(node.firstChild_);
    node.lastChild_ = mine(node.lastChild_);
    node.next_ = mine(node.next_);
    node.previous_ = mine(node.previous_);
  }
  firstRoot_ = mine(other.firstRoot_);
  lastRoot_ = mine(other.lastRoot_);
}

Tree& Tree::operator=(const Tree& other) {
  if (this != &other) *this = Tree(other);
  return *this;
}

Tree::Tree(Tree&& other) noexcept
    : nodes_(std::move(other.nodes_)),
      firstRoot_(std::exchange(other.firstRoot_, nullptr)),
      lastRoot_(std::exchange(other.lastRoot_, nullptr)) {
  other.nodes_.clear();
}

Tree& Tree::operator=(Tree&& other) noexcept {
  nodes_ = std::move(other.nodes_);
  firstRoot_ = std::exchange(other.firstRoot_, nullptr);
  lastRoot_ = std::exchange(other.lastRoot_, nullptr);
  other.nodes_.clear();
  return *this;
}

Node* Tree::find(std::string_view key) { return nodes_.find(key); }

const Node* Tree::find(std::string_view key) const { return nodes_.find(key); }

Node& Tree::create(std::string key, SharedText text) {
  Node node;
  node.Key = key;
  node.Text = std::move(text);
  return nodes_.add(std::move(key), std::move(node)).second;
}

void Tree::link(Node& node, Node* parent, Node* previous, Node* next) {
  node.parent_ = parent;
  node.previous_ = previous;
  node.next_ = next;
  Node*& first = parent == nullptr ? firstRoot_ : parent->firstChild_;
  Node*& last = parent == nullptr ? lastRoot_ : parent->lastChild_;
  (previous == nullptr ? first : previous->next_) = &node;
  (next == nullptr ? last : next->previous_) = &node;
  if (parent != nullptr) ++parent->children_;
}

void Tree::unlink(Node& node) {
  Node*& first = node.parent_ == nullptr ? firstRoot_ : node.parent_->firstChild_;
  Node*& last = node.parent_ == nullptr ? lastRoot_ : node.parent_->lastChild_;
  (node.previous_ == nullptr ? first : node.previous_->next_) = node.next_;
  (node.next_ == nullptr ? last : node.next_->previous_) = node.previous_;
  if (node.parent_ != nullptr) --node.parent_->children_;
}

Node& Tree::addRoot(std::string key, SharedText text) {
  Node& node = create(std::move(key), std::move(text));
  link(node, nullptr, lastRoot_, nullptr);
  return node;
}

Node& Tree::add(Node& relative, Relationship relationship, std::string key, SharedText text) {
  Node& node = create(std::move(key), std::move(text));
  place(node, relative, relationship);
  return node;
}

void Tree::move(Node& node, Node& relative, Relationship relationship) {
  unlink(node);
  place(node, relative, relationship);
}

void Tree::place(Node& node, Node& relative, Relationship relationship) {
  switch (relationship) {
    case Relationship::Next: link(node, relative.parent_, &relative, relative.next_); break;
    case Relationship::Previous: link(node, relative.parent_, relative.previous_, &relative); break;
    case Relationship::Child: link(node, &relative, relative.lastChild_, nullptr); break;
  }
}

void Tree::remove(std::string_view key) {
  Node* top = find(key);
  if (top == nullptr) return;
  // Leaves first, without recursion: the depth of a file's tree is limited only by its size.
  for (Node* node = top;;) {
    while (node->firstChild_ != nullptr) node = node->firstChild_;
    Node* above = node == top ? nullptr : node->parent_;
    unlink(*node);
    nodes_.remove(node->Key);
    if (above == nullptr) return;
    node = above;
  }
}

void Tree::clear() {
  nodes_.clear();
  firstRoot_ = lastRoot_ = nullptr;
}

Node* following(const Node* node, const Node* top) {
  return node->Child() != nullptr ? node->Child() : followingPastChildren(node, top);
}

Node* followingPastChildren(const Node* node, const Node* top) {
  for (; node != nullptr && node != top; node = node->Parent()) {
    if (node->Next() != nullptr) return node->Next();
  }
  return nullptr;
}

bool Tree::operator==(const Tree& other) const {
  const auto keyOf = [](const Node* node) { return node == nullptr ? std::string_view{} : node->Key; };
  const Node* a = root();
  const Node* b = other.root();
  for (; a != nullptr && b != nullptr; a = following(a), b = following(b)) {
    if (a->Key != b->Key || a->Text != b->Text || keyOf(a->Parent()) != keyOf(b->Parent())) return false;
  }
  return a == b;  // both at their end
}

}  // namespace nimbrel
