// Cut, Copy, Paste and Duplicate, and what travels between programs.
#include "model/outline.h"
#include "model/structure.h"
#include "shell/main_window.h"

namespace nimbrel {
namespace {

/// A document with the nodes below a main menu, which a menu file can hold.
Document documentOf(const Clipboard& clipboard) {
  Document document;
  int number = 0;
  while (clipboard.tvCopyTree.find("M" + std::to_string(number)) != nullptr) ++number;
  auto& tree = document.tvTreeView;
  const auto& root = tree.addRoot("M" + std::to_string(number), "");
  document.ElementColl.add(root.Key, MenuObj{});
  for (const Node* top : rootsOf(clipboard)) {
    for (const Node* node = top; node != nullptr; node = following(node, top)) {
      auto& parent = *tree.find(node == top ? root.Key : node->Parent()->Key);
      tree.add(parent, Relationship::Child, node->Key, node->Text);
      if (const auto* element = clipboard.CopyColl.find(node->Key))
        document.ElementColl.add(node->Key, *element);
    }
  }
  return document;
}

NodeClipboard::Content contentOf(const Clipboard& clipboard) {
  return {menuFileText(documentOf(clipboard)), outlineText(clipboard)};
}

}  // namespace

NodeClipboard::Content frmMain::contentOf(const Nodes& nodes) const {
  Clipboard copied;
  CopySubtrees(document, nodes, copied);
  return nimbrel::contentOf(copied);
}

/// What another program has. Items from a text look like those that would be added at `target`.
Clipboard frmMain::read(const NodeClipboard::Content& content, const Node& target) const {
  Clipboard copied;
  if (!content.nodes.empty()) {
    Document brought;
    SubmenuCarryOver unused;
    ReadNotes notes;
    readMenuFile(content.nodes, "clipboard", {}, unused, brought, notes);
    Nodes nodes;
    const Node* root = brought.tvTreeView.root();
    const Node* first = root == nullptr ? nullptr : root->Child();
    for (const Node* node = first; node != nullptr; node = node->Next()) {
      if (kindOf(node->Key) == Kind::Item || kindOf(node->Key) == Kind::Submenu) nodes.push_back(node);
    }
    CopySubtrees(brought, nodes, copied);
    return copied;
  }
  const auto item = newItem(document, target.Key);
  if (!item) return copied;
  const auto& look = std::get<ItemObj>(*item->subtree.entries.front().element);
  return outlined(content.text, look, submenuLook(document, target.Key));
}

/// Copies the selected nodes, or tells why that cannot be.
bool frmMain::copySelected() {
  const auto nodes = selection();
  for (const auto* node : nodes) {
    if (const auto* refusal = refusalOfCopy(node->Key)) {
      ports.asker.MsgBox(warning(*refusal));
      return false;
    }
  }
  CopySubtrees(document, topmost(document, nodes), clipboard);
  ports.clipboard.put(nimbrel::contentOf(clipboard));
  return true;
}

void frmMain::clipboardChanged() {
  enablePaste(!clipboard.tvCopyTree.empty() || ports.clipboard.hasForeign());
}

/// Quirk: enables Paste even if there is nothing to paste.
void frmMain::mnuEditCopy() {
  if (selected() == nullptr) return;
  LeaveCells();
  copySelected();
  enablePaste(true);
}

void frmMain::mnuEditCut() {
  for (const auto* node : selection()) {
    if (const auto* refusal = refusalOfCut(node->Key)) {
      ports.asker.MsgBox(warning(*refusal));
      return;
    }
  }
  if (selected() == nullptr) return;
  LeaveCells();
  copySelected();
  remove(topmost(document, selection()), "Cut");
  SelectNode(selected());
  RefreshCurrentSheet();
  enablePaste(true);
}

/// Commits no cell and keeps the selection. A paste that fails halfway is a change too.
void frmMain::mnuEditPaste() {
  const auto* target = selected();
  if (target == nullptr) return;
  if (ports.clipboard.hasForeign()) {
    auto brought = read(ports.clipboard.foreign(), *target);
    if (!brought.tvCopyTree.empty()) clipboard = std::move(brought);
  }
  if (clipboard.tvCopyTree.empty()) return;
  if (const auto* refusal = refusalOfPaste(clipboard, *target)) {
    ports.asker.MsgBox(warning(*refusal));
    return;
  }
  auto pasted = pastedSubtrees(document, *target, clipboard);
  const bool lacksNumbers = isCut(document, pasted, clipboard);
  if (!pasted.empty()) {
    Edit edit("Paste");
    for (auto& one : pasted) edit.insert(std::move(one));
    apply(std::move(edit));
  }
  if (lacksNumbers) throwUsedUp();
}

/// Copies of the selected items after the last of them. The clipboard stays.
void frmMain::mnuEditDuplicate() {
  const auto items = topmost(document, selectedOf(Kind::Item));
  if (items.empty()) return;
  LeaveCells();
  Clipboard copied;
  CopySubtrees(document, items, copied);
  auto duplicates = pastedSubtrees(document, *items.back(), copied);
  if (isCut(document, duplicates, copied)) throwUsedUp();
  add("Duplicate", std::move(duplicates));
}

void frmMain::drop(const NodeClipboard::Content& content, const Node& target, Drop drop) {
  LeaveCells();
  const auto brought = read(content, target);
  const auto place = dropPlace(rootsOf(brought), target, drop);
  if (!place) return;
  auto inserted = insertionsAt(document, *place, brought);
  if (isCut(document, inserted, brought)) throwUsedUp();
  add("Drop", std::move(inserted));
}

}  // namespace nimbrel
