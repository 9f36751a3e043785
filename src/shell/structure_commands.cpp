// The commands that change the structure of the tree.
#include <algorithm>

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

}  // namespace

void frmMain::mnuEditUndo() {
  LeaveCells();  // its entry is a change of its own, and the first to be undone
  if (editor.undoName()) show(editor.undo());
}

void frmMain::mnuEditRedo() {
  LeaveCells();
  if (editor.redoName()) show(editor.redo());
}

/// Quirk: enables Paste even if there is nothing to paste.
void frmMain::mnuEditCopy() {
  if (selected() == nullptr) return;
  LeaveCells();
  if (const auto* refusal = refusalOfCopy(selectedKey_)) {
    ports.asker.MsgBox(warning(*refusal));
  } else {
    CopySubtree(document, *selected(), clipboard);
  }
  enablePaste(true);
}

void frmMain::mnuEditCut() {
  if (selected() == nullptr) return;
  if (const auto* refusal = refusalOfCut(selectedKey_)) {
    ports.asker.MsgBox(warning(*refusal));
    return;
  }
  LeaveCells();
  CopySubtree(document, *selected(), clipboard);
  removeSelected("Cut");
  SelectNode(selected());
  RefreshCurrentSheet();
  enablePaste(true);
}

/// Commits no cell and keeps the selection. A paste that fails halfway is a change too.
void frmMain::mnuEditPaste() {
  const auto* target = selected();
  if (target == nullptr || clipboard.tvCopyTree.empty()) return;
  if (const auto* refusal = refusalOfPaste(clipboard, *target)) {
    ports.asker.MsgBox(warning(*refusal));
    return;
  }
  auto pasted = pastedSubtree(document, *target, clipboard);
  const bool lacksNumbers = isCut(pasted, clipboard);
  if (!pasted.subtree.empty()) {
    Edit edit("Paste");
    edit.insert(std::move(pasted));
    apply(std::move(edit));
  }
  if (lacksNumbers) throwUsedUp();
}

/// A copy of the selected item after it. The clipboard stays.
void frmMain::mnuEditDuplicate() {
  if (selectedKind() != Kind::Item) return;
  LeaveCells();
  Clipboard copied;
  CopySubtree(document, *selected(), copied);
  auto duplicate = pastedSubtree(document, *selected(), copied);
  if (isCut(duplicate, copied)) throwUsedUp();
  if (!duplicate.subtree.empty()) add("Duplicate", std::move(duplicate));
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

/// Adds new nodes and selects the first.
void frmMain::add(std::string_view editName, Insertion insertion) {
  Edit edit{std::string(editName)};
  const auto key = insertion.subtree.key();
  edit.after.key = key;
  edit.insert(std::move(insertion));
  apply(std::move(edit));
  SelectNode(document.tvTreeView.find(key));
}

void frmMain::mnuItemAddItem() {
  if (selected() == nullptr) return;
  LeaveCells();
  if (auto item = newItem(document, selectedKey_)) add("Add Item", *std::move(item));
}

void frmMain::mnuSubmenuAddSubmenu() {
  if (selected() == nullptr) return;
  if (const auto* refusal = refusalOfSubmenu(document, selectedKey_)) {
    ports.asker.MsgBox(warning(*refusal));
    return;
  }
  LeaveCells();
  if (auto submenu = newSubmenu(document, selectedKey_)) add("Add Submenu", *std::move(submenu));
}

bool frmMain::askToDelete(const Message& message) {
  auto box = warning(message);
  box.icon = BoxIcon::Question;
  box.buttons = {BoxButton::Yes, BoxButton::No};
  box.defaultButton = BoxButton::No;
  return ports.asker.MsgBox(box) == BoxButton::Yes;
}

/// Removes the selected node and selects its neighbour.
void frmMain::removeSelected(std::string_view editName) {
  const auto& node = *selected();
  const auto* neighbour = neighbourOf(node);
  Edit edit{std::string(editName)};
  edit.before.key = selectedKey_;
  if (neighbour != nullptr) edit.after.key = neighbour->Key;
  edit.remove(node);
  select(neighbour);
  apply(std::move(edit));
}

void frmMain::mnuItemDeleteItem() {
  if (selectedKind() != Kind::Item) return;
  if (askToDelete(selected()->Child() == nullptr ? deleteItem : deleteItemTree)) {
    LeaveCells();
    removeSelected("Delete Item");
    RefreshCurrentSheet();
  }
  SelectNode(selected());
}

/// Unlike Delete Item, it does not leave the cell or call `SelectNode`, so the states of commands do not change.
void frmMain::mnuSubmenuDeleteSubmenu() {
  if (selectedKind() != Kind::Submenu) return;
  if (!askToDelete(selected()->Child() == nullptr ? deleteSubmenu : deleteSubmenuTree)) return;
  prctlSubmenu.TakeBack();  // its element is removed
  removeSelected("Delete Submenu");
  RefreshCurrentSheet();
}

void frmMain::mnuItemMove(bool up) {
  if (selectedKind() != Kind::Item) return;
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

}  // namespace nimbrel
