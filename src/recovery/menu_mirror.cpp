#include "recovery/menu_mirror.h"

#include <unordered_set>

#include "persistence/menu_file.h"

namespace nimbrel {
namespace {

std::vector<std::string> keysInOrder(const Document& document) {
  std::vector<std::string> keys;
  const Node* root = document.tvTreeView.root();
  for (const Node* node = root; node != nullptr; node = following(node, root)) keys.push_back(node->Key);
  return keys;
}

/// Adds the records of a node and its descendants. Does nothing if there is no such node any more.
void addRecords(MenuChange& change, const Document& document, std::string_view key) {
  const Node* top = document.tvTreeView.find(key);
  for (const Node* node = top; node != nullptr; node = following(node, top))
    change.records.emplace_back(node->Key, menuFileRecord(document, *node));
}

void add(MenuChange& change, const Document& document, const ElementStep& step) {
  const Node* node = document.tvTreeView.find(step.key);
  if (node != nullptr) change.records.emplace_back(step.key, menuFileRecord(document, *node));
}

void add(MenuChange& change, const Document& document, const SubtreeStep& step) {
  if (!change.order) change.order = keysInOrder(document);
  if (step.subtree.empty()) addRecords(change, document, step.key);
}

void add(MenuChange& change, const Document& document, const MoveStep& step) {
  if (!change.order) change.order = keysInOrder(document);
  const Node* node = document.tvTreeView.find(step.key);
  if (node != nullptr) change.records.emplace_back(step.key, menuFileRecord(document, *node));
}

void add(MenuChange&, const Document&, const SettingsStep&) {}

}  // namespace

MenuChange wholeMenu(const Document& document) {
  MenuChange change{.isWhole = true, .head = menuFileHead(document.settings), .records = {}, .order = {}};
  change.order = keysInOrder(document);
  if (const Node* root = document.tvTreeView.root()) addRecords(change, document, root->Key);
  return change;
}

MenuChange changeBy(const Edit& edit, const Document& document) {
  MenuChange change{.head = menuFileHead(document.settings), .records = {}, .order = {}};
  for (const auto& step : edit.steps) std::visit([&](const auto& one) { add(change, document, one); }, step);
  return change;
}

void MenuMirror::apply(MenuChange change) {
  if (change.isWhole) records_.clear();
  head_ = std::move(change.head);
  for (auto& [key, bytes] : change.records) records_.insert_or_assign(std::move(key), std::move(bytes));
  if (!change.order) return;
  order_ = *std::move(change.order);
  // Undo brings a removed node back with its record, so those without a node can go.
  if (records_.size() == order_.size()) return;
  const std::unordered_set<std::string_view> keys(order_.begin(), order_.end());
  std::erase_if(records_, [&](const auto& record) { return !keys.contains(record.first); });
}

void MenuMirror::appendTo(std::string& out) const {
  out += head_;
  for (const auto& key : order_) out += records_.at(key);
}

}  // namespace nimbrel
