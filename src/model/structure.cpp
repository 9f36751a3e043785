#include "model/structure.h"

#include <stdexcept>
#include <string>
#include <utility>

namespace nimbrel {
namespace {

constexpr Message notAnItem{"Cannot create submenu",
                            "A submenu can descend only from an item, not from a menu or another submenu"};
constexpr Message hasSubmenu{"Cannot create submenu",
                             "A submenu already exists for the selected item. You\r"
                             "may select the existing submenu and add items to it"};

/// Adds an element and its node under one key.
Node& enter(Document& document, std::string key, Element element, Node* relative, Relationship relationship) {
  auto text = NodeText(element);
  Node& node = relative == nullptr ? document.tvTreeView.addRoot(key, std::move(text))
                                   : document.tvTreeView.add(*relative, relationship, key, std::move(text));
  document.ElementColl.add(std::move(key), std::move(element));
  ++document.NextKeyNumber;
  return node;
}

/// Gives a new submenu the style of the main menu or submenu that contains its item.
void copyStyleOfContext(Document& document, SubmenuObj& submenu, const Node* container) {
  if (container == nullptr) return;
  if (const auto* menu = document.get<MenuObj>(*container)) {
    CopyStyleValuesFromMenuObject(submenu, *menu);
    submenu.TitleCursor = 0;
  } else if (const auto* parent = document.get<SubmenuObj>(*container)) {
    CopyStyleValuesFromObject(submenu, *parent);
  }
}

/// Gives a new item the style of the item before it, or else of the item that owns its submenu.
void copyStyleOfContext(Document& document, ItemObj& item, const Node& node) {
  const Node* like = nullptr;
  if (const Node* parent = node.Parent()) {
    if (parent->Children() > 1) {
      like = node.Previous();
    } else if (kindOf(parent->Key) == Kind::Submenu) {
      like = parent->Parent();
    }
  }
  const auto* source = like == nullptr ? nullptr : document.get<ItemObj>(*like);
  if (source != nullptr) CopyStyleValuesFromObject(item, *source);
  clearSubmenuImages(item);
}

}  // namespace

void throwUsedUp() {
  throw std::overflow_error("the document has used up its " + std::to_string(Document::largestKeyNumber) +
                            " key numbers");
}

std::string nextKeyNumber(const Document& document) {
  if (document.NextKeyNumber == Document::largestKeyNumber) throwUsedUp();
  return std::to_string(document.NextKeyNumber);
}

Node& AddMainMenu(Document& document) {
  MenuObj menu;
  SetDefaultValues(menu);
  return enter(document, "M" + nextKeyNumber(document), std::move(menu), nullptr, Relationship::Child);
}

const Message* refusalOfSubmenu(const Document& document, std::string_view parentKey) {
  if (kindOf(parentKey) != Kind::Item) return &notAnItem;
  const Node* parent = document.tvTreeView.find(parentKey);
  return parent != nullptr && parent->Child() != nullptr ? &hasSubmenu : nullptr;
}

Node* AddSubmenu(Document& document, std::string_view parentKey) {
  Node* parent = document.tvTreeView.find(parentKey);
  if (parent == nullptr || refusalOfSubmenu(document, parentKey) != nullptr) return nullptr;
  const auto number = nextKeyNumber(document);
  SubmenuObj submenu;
  SetDefaultValues(submenu);
  submenu.SubmenuName = "Submenu" + number;
  copyStyleOfContext(document, submenu, parent->Parent());
  return &enter(document, "S" + number, std::move(submenu), parent, Relationship::Child);
}

Node* AddItem(Document& document, std::string_view selectedKey) {
  Node* selected = document.tvTreeView.find(selectedKey);
  if (selected == nullptr) return nullptr;
  const auto number = nextKeyNumber(document);
  ItemObj item;
  SetDefaultValues(item);
  setNames(item, "Item" + number);
  if (kindOf(selectedKey) == Kind::Item && selected->Parent() == nullptr) return nullptr;
  const auto relationship = kindOf(selectedKey) == Kind::Item ? Relationship::Next : Relationship::Child;
  Node& node = enter(document, "I" + number, std::move(item), selected, relationship);
  copyStyleOfContext(document, *document.get<ItemObj>(node), node);
  return &node;
}

void RemoveSubtree(Document& document, std::string_view key) {
  const Node* top = document.tvTreeView.find(key);
  if (top == nullptr) return;
  for (const Node* node = top; node != nullptr; node = following(node, top)) {
    document.ElementColl.remove(node->Key);
  }
  document.tvTreeView.remove(top->Key);  // `key` may be a view of a removed element's key
}

void BuildDefaultDocument(Document& document) {
  document.clear();
  const Node* selected = &AddMainMenu(document);
  for (int i = 0; i < 3; ++i) {
    selected = AddItem(document, selected->Key);
    auto& item = *document.get<ItemObj>(*selected);
    item.URL = homePage;
    item.TargetFrame = "new";
  }
}

}  // namespace nimbrel
