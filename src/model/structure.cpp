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

/// The number for a new key, as text.
std::string nextKeyNumber(const Document& document) {
  if (document.NextKeyNumber == Document::largestKeyNumber) throwUsedUp();
  return std::to_string(document.NextKeyNumber);
}

/// One new node, with the number that is next.
Insertion insertionOf(const Document& document, std::string key, Element element, NodePlace place) {
  Insertion insertion{{}, std::move(place), static_cast<std::int16_t>(document.NextKeyNumber + 1)};
  auto text = NodeText(element);
  insertion.subtree.entries.push_back({std::move(key), std::move(text), 0, std::move(element)});
  return insertion;
}

/// Gives a new submenu the style of the main menu or submenu that contains its item.
void copyStyleOfContext(const Document& document, SubmenuObj& submenu, const Node* container) {
  const auto* element = container == nullptr ? nullptr : document.element(*container);
  if (element == nullptr) return;
  if (const auto* menu = std::get_if<MenuObj>(element)) {
    CopyStyleValuesFromMenuObject(submenu, *menu);
    submenu.TitleCursor = 0;
  } else if (const auto* parent = std::get_if<SubmenuObj>(element)) {
    CopyStyleValuesFromObject(submenu, *parent);
  }
}

/// Returns the last child, or nullptr.
const Node* lastChildOf(const Node& node) {
  return node.Child() == nullptr ? nullptr : node.Child()->LastSibling();
}

/// Gives a new item the style of the item before it, or else of the item that owns its submenu.
void copyStyleOfContext(const Document& document, ItemObj& item, const Node& selected) {
  const Node* like = kindOf(selected.Key) == Kind::Item ? &selected : lastChildOf(selected);
  if (like == nullptr && kindOf(selected.Key) == Kind::Submenu) like = selected.Parent();
  const auto* element = like == nullptr ? nullptr : document.element(*like);
  const auto* source = element == nullptr ? nullptr : std::get_if<ItemObj>(element);
  if (source != nullptr) CopyStyleValuesFromObject(item, *source);
  clearSubmenuImages(item);
}

}  // namespace

void throwUsedUp() {
  throw std::overflow_error("the document has used up its " + std::to_string(Document::largestKeyNumber) +
                            " key numbers");
}

Node& AddMainMenu(Document& document) {
  MenuObj menu;
  SetDefaultValues(menu);
  return putIn(document, insertionOf(document, "M" + nextKeyNumber(document), std::move(menu), {}));
}

const Message* refusalOfSubmenu(const Document& document, std::string_view parentKey) {
  if (kindOf(parentKey) != Kind::Item) return &notAnItem;
  const Node* parent = document.tvTreeView.find(parentKey);
  return parent != nullptr && parent->Child() != nullptr ? &hasSubmenu : nullptr;
}

std::optional<Insertion> newSubmenu(const Document& document, std::string_view parentKey) {
  const Node* parent = document.tvTreeView.find(parentKey);
  if (parent == nullptr || refusalOfSubmenu(document, parentKey) != nullptr) return std::nullopt;
  const auto number = nextKeyNumber(document);
  auto submenu = submenuLook(document, parentKey);
  submenu.SubmenuName = "Submenu" + number;
  return insertionOf(document, "S" + number, std::move(submenu), {parent->Key, ""});
}

SubmenuObj submenuLook(const Document& document, std::string_view key) {
  SubmenuObj submenu;
  SetDefaultValues(submenu);
  const Node* node = document.tvTreeView.find(key);
  copyStyleOfContext(document, submenu, kindOf(key) == Kind::Item && node != nullptr ? node->Parent() : node);
  return submenu;
}

Node* AddSubmenu(Document& document, std::string_view parentKey) {
  auto submenu = newSubmenu(document, parentKey);
  return submenu ? &putIn(document, *std::move(submenu)) : nullptr;
}

std::optional<Insertion> newItem(const Document& document, std::string_view selectedKey) {
  const Node* selected = document.tvTreeView.find(selectedKey);
  if (selected == nullptr) return std::nullopt;
  const auto number = nextKeyNumber(document);
  const bool isAfter = kindOf(selectedKey) == Kind::Item;
  if (isAfter && selected->Parent() == nullptr) return std::nullopt;
  ItemObj item;
  SetDefaultValues(item);
  setNames(item, "Item" + number);
  copyStyleOfContext(document, item, *selected);
  return insertionOf(document, "I" + number, std::move(item),
                     isAfter ? placeOf(*selected) : NodePlace{selected->Key, ""});
}

Node* AddItem(Document& document, std::string_view selectedKey) {
  auto item = newItem(document, selectedKey);
  return item ? &putIn(document, *std::move(item)) : nullptr;
}

void RemoveSubtree(Document& document, std::string_view key) {
  if (document.tvTreeView.find(key) != nullptr) takeOut(document, std::string(key));
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
