// Find, Replace and Reset.
#include <algorithm>
#include <iterator>
#include <unordered_map>
#include <utility>

#include "properties/element_values.h"
#include "shell/main_window.h"

namespace nimbrel {

std::vector<const Node*> frmMain::find(std::string text) {
  findText_ = std::move(text);
  return nodesWith(document, findText_);
}

std::size_t frmMain::replace(std::string_view text, std::string by, TextKind kind) {
  LeaveCells();
  std::ranges::replace_if(
      by, [](char c) { return c == '\r' || c == '\n'; }, ' ');
  auto [edit, count] = replacing(document, text, by, kind);
  if (edit.steps.empty()) return 0;
  apply(std::move(edit));
  SelectNodes(selection());
  return count;
}

/// Selects the next of the nodes found, in tree order and round the end.
void frmMain::findNext(bool forward) {
  LeaveCells();
  const auto found = nodesWith(document, findText_);
  if (found.empty()) return;
  std::unordered_map<const Node*, std::size_t> order;
  for (const Node* node = document.tvTreeView.root(); node != nullptr; node = following(node)) {
    order.emplace(node, order.size());
  }
  const auto place = [&](const Node* node) { return order.at(node); };
  const auto here = selected() == nullptr ? 0 : order.at(selected());
  if (forward) {
    const auto next = std::ranges::upper_bound(found, here, {}, place);
    SelectNode(next == found.end() ? found.front() : *next);
  } else {
    const auto next = std::ranges::lower_bound(found, here, {}, place);
    SelectNode(next == found.begin() ? found.back() : *std::prev(next));
  }
}

/// Sets the current row of the sheet, or the whole element but its name, to the defaults.
void frmMain::mnuEditReset(bool onlyRow) {
  LeaveCells();
  const auto* sheet = visibleSheet();
  if (sheet == nullptr) return;
  const int ordinal = onlyRow ? sheet->cursorRow() : -1;
  Edit edit("Reset" + (onlyRow ? " " + std::string(sheet->row(ordinal).Caption) : " to Defaults"));
  edit.before = {selectedKey_, ordinal, sheet->cursorColumn(), otherKeys_};
  for (const auto* node : selectedOf(selectedKind())) {
    Element element = *document.element(*node);
    std::visit([&](auto& object) { ResetToStandards(object, *sheet, ordinal); }, element);
    edit.set(document, *node, std::move(element));
  }
  if (edit.steps.empty()) return;
  const auto spot = edit.before;
  apply(std::move(edit));
  show(spot);
}

}  // namespace nimbrel
