#include "editing/edit.h"

#include <utility>

namespace nimbrel {

void Edit::set(const Document& document, const Node& node, Element element, SharedText text) {
  const auto* old = document.element(node);
  if (old != nullptr && *old == element && node.Text == text) return;
  steps.emplace_back(ElementStep{node.Key, std::move(element), std::move(text)});
}

void Edit::insert(Insertion insertion) {
  counter = insertion.counter;
  auto key = insertion.subtree.key();
  steps.emplace_back(SubtreeStep{std::move(key), std::move(insertion.place), std::move(insertion.subtree)});
}

void Edit::remove(const Node& node) { steps.emplace_back(SubtreeStep{node.Key, {}, {}}); }

void Edit::move(const Node& node, NodePlace place, std::int16_t newCounter) {
  counter = newCounter;
  steps.emplace_back(MoveStep{node.Key, std::move(place)});
}

void Edit::set(const Document& document, CompileSettings settings) {
  settings.CompiledPath = document.settings.CompiledPath;
  settings.CompiledName = document.settings.CompiledName;
  if (settings != document.settings) steps.emplace_back(SettingsStep{std::move(settings)});
}

}  // namespace nimbrel
