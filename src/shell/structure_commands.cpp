// The commands that change the structure of the tree.
#include "model/structure.h"
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

bool isSelected(const Node* node, Kind kind) { return node != nullptr && kindOf(node->Key) == kind; }

}  // namespace

/// Quirk: enables Paste even if there is nothing to paste.
void frmMain::mnuEditCopy() {
  if (selected == nullptr) return;
  LeaveCells();
  if (const auto* refusal = refusalOfCopy(selected->Key)) {
    ports.asker.MsgBox(warning(*refusal));
  } else {
    CopySubtree(document, *selected, clipboard);
  }
  commands.enablePaste(true);
}

void frmMain::mnuEditCut() {
  if (selected == nullptr) return;
  if (const auto* refusal = refusalOfCut(selected->Key)) {
    ports.asker.MsgBox(warning(*refusal));
    return;
  }
  LeaveCells();
  CopySubtree(document, *selected, clipboard);
  removeSelected();
  SelectNode(selected);
  SetIsDirty();
  RefreshCurrentSheet();
  commands.enablePaste(true);
}

/// Commits no cell and keeps the selection. A paste that fails halfway is a change too.
void frmMain::mnuEditPaste() {
  if (selected == nullptr || clipboard.tvCopyTree.empty()) return;
  if (const auto* refusal = refusalOfPaste(clipboard, *selected)) {
    ports.asker.MsgBox(warning(*refusal));
    return;
  }
  const auto before = document.tvTreeView.size();
  try {
    if (PasteSubtree(document, *selected, clipboard) == nullptr) return;
  } catch (...) {
    if (document.tvTreeView.size() > before) SetIsDirty();
    throw;
  }
  SetIsDirty();
}

void frmMain::mnuItemAddItem() {
  if (selected == nullptr) return;
  LeaveCells();
  Node* node = AddItem(document, selected->Key);
  if (node == nullptr) return;
  SelectNode(node);
  SetIsDirty();
}

void frmMain::mnuSubmenuAddSubmenu() {
  if (selected == nullptr) return;
  if (const auto* refusal = refusalOfSubmenu(document, selected->Key)) {
    ports.asker.MsgBox(warning(*refusal));
    return;
  }
  LeaveCells();
  Node* node = AddSubmenu(document, selected->Key);
  SelectNode(node);
  SetIsDirty();
}

bool frmMain::askToDelete(const Message& message) {
  auto box = warning(message);
  box.icon = BoxIcon::Question;
  box.buttons = {BoxButton::Yes, BoxButton::No};
  box.defaultButton = BoxButton::No;
  return ports.asker.MsgBox(box) == BoxButton::Yes;
}

/// Removes the selected node and selects its neighbour.
void frmMain::removeSelected() {
  const auto key = selected->Key;
  select(neighbourOf(*selected));
  RemoveSubtree(document, key);
}

void frmMain::mnuItemDeleteItem() {
  if (!isSelected(selected, Kind::Item)) return;
  if (askToDelete(selected->Child() == nullptr ? deleteItem : deleteItemTree)) {
    LeaveCells();
    removeSelected();
    RefreshCurrentSheet();
    SetIsDirty();
  }
  SelectNode(selected);
}

/// Unlike Delete Item, it does not leave the cell or call `SelectNode`, so the states of commands do not change.
void frmMain::mnuSubmenuDeleteSubmenu() {
  if (!isSelected(selected, Kind::Submenu)) return;
  if (!askToDelete(selected->Child() == nullptr ? deleteSubmenu : deleteSubmenuTree)) return;
  prctlSubmenu.TakeBack();  // its element is removed
  removeSelected();
  RefreshCurrentSheet();
  SetIsDirty();
}

void frmMain::mnuItemMove(bool up) {
  if (!isSelected(selected, Kind::Item)) return;
  if (up ? MoveItemUp(document, *selected) : MoveItemDown(document, *selected)) {
    SelectNode(selected);
    SetIsDirty();
  }
  enableMoves();
}

}  // namespace nimbrel
