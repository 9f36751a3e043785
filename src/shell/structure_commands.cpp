// The commands that change the structure of the tree.
#include <algorithm>
#include <span>
#include <unordered_set>

#include "model/structure.h"
#include "shell/command_table.h"
#include "shell/main_window.h"

namespace nimbrel {
namespace {

constexpr Message deleteItem{"Delete Item", "Are you sure you want to delete the selected item?"};
constexpr Message deleteItemTree{"Delete Item",
                                 "This command will delete the selected item and the entire menu structure\r"
                                 "deriving from the item. Proceed?"};
constexpr Message deleteSubmenu{"Delete Submenu", "Are you sure you want to delete the selected submenu?"};
constexpr Message deleteSubmenuTree{
    "Delete Submenu",
    "This command will delete the selected submenu and the entire menu structure\r"
    "deriving from the submenu. Proceed?"};

Spot spotOn(const Nodes& nodes) {
  Spot spot{.key = nodes.front()->Key};
  for (const auto* other : std::span(nodes).subspan(1)) spot.others.push_back(other->Key);
  return spot;
}

}  // namespace

void frmMain::mnuEditUndo() {
  LeaveCells();  // its entry is a change of its own, and the first to be undone
  if (editor.undoName()) show(editor.undo());
}

void frmMain::mnuEditRedo() {
  LeaveCells();
  if (editor.redoName()) show(editor.redo());
}

void frmMain::rename(const Node& node, std::string name) {
  LeaveCells();
  const auto* old = document.element(node);
  if (old == nullptr) return;
  std::ranges::replace_if(
      name, [](char c) { return c == '\r' || c == '\n'; }, ' ');
  Element element = *old;
  setName(element, name);
  Edit edit("Rename");
  edit.before.key = node.Key;
  auto text = NodeText(element);
  edit.set(document, node, std::move(element), std::move(text));
  if (edit.steps.empty()) return;
  apply(std::move(edit));
  SelectNode(&node);
}

/// Adds new nodes and selects them.
void frmMain::add(std::string_view editName, Insertions insertions) {
  if (insertions.empty()) return;
  Edit edit{std::string(editName)};
  Spot after;
  for (auto& insertion : insertions) {
    (after.key.empty() ? after.key : after.others.emplace_back()) = insertion.subtree.key();
    edit.insert(std::move(insertion));
  }
  edit.after = after;
  apply(std::move(edit));
  show(after);
}

void frmMain::mnuItemAddItem() {
  if (selected() == nullptr) return;
  LeaveCells();
  if (auto item = newItem(document, selectedKey_)) add("Add Item", {*std::move(item)});
}

void frmMain::mnuSubmenuAddSubmenu() {
  if (selected() == nullptr) return;
  if (const auto* refusal = refusalOfSubmenu(document, selectedKey_)) {
    ports.asker.MsgBox(warning(*refusal));
    return;
  }
  LeaveCells();
  if (auto submenu = newSubmenu(document, selectedKey_)) add("Add Submenu", {*std::move(submenu)});
}

bool frmMain::askToDelete(const Message& message) {
  auto box = warning(message);
  box.icon = BoxIcon::Question;
  box.buttons = {BoxButton::Yes, BoxButton::No};
  box.defaultButton = BoxButton::No;
  return ports.asker.MsgBox(box) == BoxButton::Yes;
}

/// Removes nodes, none of which hangs from another, and selects the neighbour of the first.
void frmMain::remove(const Nodes& nodes, std::string_view editName) {
  const auto isRemoved = [&](const Node* node) { return std::ranges::find(nodes, node) != nodes.end(); };
  const auto* neighbour = neighbourOf(*nodes.front());
  while (isRemoved(neighbour) && neighbour->Next() != nullptr) neighbour = neighbour->Next();
  while (isRemoved(neighbour) && neighbour->Previous() != nullptr) neighbour = neighbour->Previous();
  if (isRemoved(neighbour)) neighbour = neighbour->Parent();
  Edit edit{std::string(editName)};
  edit.before = spot();
  if (neighbour != nullptr) edit.after.key = neighbour->Key;
  for (const auto* node : nodes) edit.remove(*node);
  select(neighbour);
  apply(std::move(edit));
}

/// Asks, and removes all selected nodes but the main menu.
void frmMain::deleteSeveral() {
  auto nodes = selection();
  std::erase_if(nodes, [](const Node* node) { return kindOf(node->Key) == Kind::Menu; });
  nodes = topmost(document, nodes);
  if (nodes.empty()) return;
  const auto text = "Are you sure you want to delete the " + std::to_string(nodes.size()) +
                    " selected entries, and the entire menu structure\rderiving from them?";
  if (!askToDelete({"Delete", text})) return;
  LeaveCells();
  remove(nodes, "Delete");
  SelectNode(selected());
  RefreshCurrentSheet();
}

void frmMain::mnuItemDeleteItem() {
  if (!otherKeys_.empty()) return deleteSeveral();
  if (selectedKind() != Kind::Item) return;
  if (askToDelete(selected()->Child() == nullptr ? deleteItem : deleteItemTree)) {
    LeaveCells();
    remove({selected()}, "Delete Item");
    RefreshCurrentSheet();
  }
  SelectNode(selected());
}

/// Unlike Delete Item, it does not leave the cell or call `SelectNode`, so the states of commands do not change.
void frmMain::mnuSubmenuDeleteSubmenu() {
  if (!otherKeys_.empty()) return deleteSeveral();
  if (selectedKind() != Kind::Submenu) return;
  if (!askToDelete(selected()->Child() == nullptr ? deleteSubmenu : deleteSubmenuTree)) return;
  prctlSubmenu.TakeBack();  // its element is removed
  remove({selected()}, "Delete Submenu");
  RefreshCurrentSheet();
}

void frmMain::mnuItemMove(bool up) {
  if (selectedKind() != Kind::Item) return;
  if (!otherKeys_.empty()) return moveSeveral(up);
  const auto& item = *selected();
  if (auto to = up ? moveUp(document, item) : moveDown(document, item)) {
    Edit edit(up ? "Move Item Up" : "Move Item Down");
    edit.move(item, std::move(to->place), to->counter);
    apply(std::move(edit));
    SelectNode(&item);
  }
  for (const std::string_view name : {"mnuItemMoveItemUp", "mnuItemMoveItemDown"}) {
    commands.enable(name, commandOfEntry(name)->enabledWhen(*this));
  }
}

/// The siblings that selected items pass when they move up or down, and where these siblings go.
std::vector<std::pair<const Node*, NodePlace>> frmMain::passed(bool up) const {
  const auto items = topmost(document, selectedOf(Kind::Item));
  const std::unordered_set<const Node*> isMoving(items.begin(), items.end());
  std::vector<std::pair<const Node*, NodePlace>> all;
  for (const auto* first : items) {
    if (isMoving.contains(first->Previous()) || first->Parent() == nullptr) continue;
    const auto* last = first;  // of the items side by side, which move as one
    while (isMoving.contains(last->Next())) last = last->Next();
    const auto* sibling = up ? first->Previous() : last->Next();
    if (sibling == nullptr) continue;
    all.emplace_back(sibling, up ? placeOf(*last) : NodePlace{first->Parent()->Key, first->Key});
  }
  return all;
}

void frmMain::moveSeveral(bool up) {
  LeaveCells();
  Edit edit(up ? "Move Items Up" : "Move Items Down");
  for (auto& [sibling, place] : passed(up)) edit.move(*sibling, std::move(place), document.NextKeyNumber);
  if (edit.steps.empty()) return;
  apply(std::move(edit));
  SelectNodes(selection());
}

/// The selected items that are siblings of the first of them, in order.
Nodes frmMain::selectedSiblings() const {
  auto items = topmost(document, selectedOf(Kind::Item));
  std::erase_if(items, [parent = items.empty() ? nullptr : items.front()->Parent()](const Node* item) {
    return item->Parent() != parent;
  });
  return items;
}

/// The item whose submenu the selected items can move into: the one before them.
const Node* frmMain::indentTarget() const {
  const auto items = selectedSiblings();
  const auto* above =
      items.empty() || items.front()->Parent() == nullptr ? nullptr : items.front()->Previous();
  const bool isItem = above != nullptr && kindOf(above->Key) == Kind::Item;
  return isItem && (above->Child() == nullptr || kindOf(above->Child()->Key) == Kind::Submenu) ? above
                                                                                               : nullptr;
}

void frmMain::mnuItemIndent() {
  const auto* above = indentTarget();
  if (above == nullptr) return;
  LeaveCells();
  Edit edit("Move into Submenu");
  auto counter = document.NextKeyNumber;
  std::string submenu;
  if (above->Child() != nullptr) {
    submenu = above->Child()->Key;
  } else {
    auto added = newSubmenu(document, above->Key);
    submenu = added->subtree.key();
    counter = added->counter;
    edit.insert(*std::move(added));
  }
  for (const auto* item : selectedSiblings()) edit.move(*item, {submenu, ""}, counter);
  apply(std::move(edit));
  SelectNodes(selection());
}

/// The item whose submenu the selected items can leave.
const Node* frmMain::outdentTarget() const {
  const auto items = selectedSiblings();
  const auto* submenu = items.empty() ? nullptr : items.front()->Parent();
  const bool isSubmenu = submenu != nullptr && kindOf(submenu->Key) == Kind::Submenu;
  const auto* owner = isSubmenu ? submenu->Parent() : nullptr;
  return owner != nullptr && kindOf(owner->Key) == Kind::Item && owner->Parent() != nullptr ? owner : nullptr;
}

/// A submenu that loses its last item goes, too.
void frmMain::mnuItemOutdent() {
  const auto* owner = outdentTarget();
  if (owner == nullptr) return;
  LeaveCells();
  const auto items = selectedSiblings();
  const auto* submenu = items.front()->Parent();
  Edit edit("Move out of Submenu");
  const bool isLast = submenu->Children() == items.size();
  for (const auto* item : items) edit.move(*item, placeOf(*owner), document.NextKeyNumber);
  edit.after = spotOn(items);
  if (isLast) edit.remove(*submenu);
  apply(std::move(edit));
  SelectNodes(items);
}

bool frmMain::canDrop(const Nodes& nodes, const Node& target, Drop drop, bool copies) const {
  return (copies ? dropPlace(nodes, target, drop) : movePlace(nodes, target, drop)).has_value();
}

void frmMain::drop(const Nodes& nodes, const Node& target, Drop drop, bool copies) {
  LeaveCells();
  const auto place = copies ? dropPlace(nodes, target, drop) : movePlace(nodes, target, drop);
  if (!place) return;
  if (copies) {
    Clipboard copied;
    CopySubtrees(document, nodes, copied);
    auto inserted = insertionsAt(document, *place, copied);
    if (isCut(document, inserted, copied)) throwUsedUp();
    add("Copy", std::move(inserted));
    return;
  }
  Edit edit("Move");
  for (const auto* node : nodes) edit.move(*node, *place, document.NextKeyNumber);
  edit.after = spotOn(nodes);
  apply(std::move(edit));
  SelectNodes(nodes);
}

}  // namespace nimbrel
