#include "editing/editor.h"

#include <algorithm>
#include <utility>

namespace nimbrel {
namespace {

std::size_t rowOf(const Node& node) {
  std::size_t row = 0;
  for (const Node* other = node.Previous(); other != nullptr; other = other->Previous()) ++row;
  return row;
}

/// The row that a node gets at a place where it is not yet.
std::size_t rowAt(const Document& document, const NodePlace& place) {
  const auto& tree = document.tvTreeView;
  if (!place.next.empty()) return rowOf(*tree.find(place.next));
  if (!place.parent.empty()) return tree.find(place.parent)->Children();
  return tree.root() == nullptr ? 0 : rowOf(*tree.root()->LastSibling()) + 1;
}

}  // namespace

/// Tells listeners if the document has become dirty or clean in the meantime.
class Editor::DirtyScope {
 public:
  explicit DirtyScope(Editor& editor) : editor_(editor), before_(editor.isDirty()) {}
  DirtyScope(const DirtyScope&) = delete;
  DirtyScope& operator=(const DirtyScope&) = delete;
  ~DirtyScope() {
    editor_.historyChanged.notify();
    if (editor_.isDirty() != before_) editor_.dirtyChanged.notify(!before_);
  }

 private:
  Editor& editor_;
  bool before_;
};

void Editor::open(Document document) {
  const DirtyScope scope(*this);
  documentAboutToBeReplaced.notify();
  document_ = std::move(document);
  edits_.clear();
  done_ = 0;
  saved_ = 0;
  isTouched_ = false;
  documentReplaced.notify();
}

void Editor::apply(Edit edit) {
  const DirtyScope scope(*this);
  if (edit.steps.empty()) {
    isTouched_ = true;
    edited.notify(edit);
    return;
  }
  if (saved_ && *saved_ > done_) saved_.reset();
  edits_.erase(edits_.begin() + static_cast<std::ptrdiff_t>(done_), edits_.end());
  swapSteps(edits_.emplace_back(std::move(edit)), true);
  ++done_;
  edited.notify(edits_.back());
}

std::optional<std::string_view> Editor::undoName() const {
  return done_ == 0 ? std::nullopt : std::optional<std::string_view>(edits_[done_ - 1].name);
}

std::optional<std::string_view> Editor::redoName() const {
  return done_ == edits_.size() ? std::nullopt : std::optional<std::string_view>(edits_[done_].name);
}

Spot Editor::undo() {
  const DirtyScope scope(*this);
  auto& edit = edits_.at(--done_);
  swapSteps(edit, false);
  edited.notify(edit);
  return edit.before;
}

Spot Editor::redo() {
  const DirtyScope scope(*this);
  auto& edit = edits_.at(done_++);
  swapSteps(edit, true);
  edited.notify(edit);
  return edit.after;
}

void Editor::markSaved() {
  const DirtyScope scope(*this);
  saved_ = done_;
  isTouched_ = false;
}

void Editor::setCompileTarget(std::string folder, std::string name) {
  document_.settings.CompiledPath = std::move(folder);
  document_.settings.CompiledName = std::move(name);
}

void Editor::swapSteps(Edit& edit, bool forward) {
  const auto swapOne = [this](EditStep& step) { std::visit([this](auto& one) { swap(one); }, step); };
  if (forward) {
    for (auto& step : edit.steps) swapOne(step);
  } else {
    std::for_each(edit.steps.rbegin(), edit.steps.rend(), swapOne);
  }
  if (edit.counter >= 0) std::swap(edit.counter, document_.NextKeyNumber);
}

void Editor::swap(ElementStep& step) {
  Node& node = *document_.tvTreeView.find(step.key);
  std::swap(*document_.element(node), step.element);
  std::swap(node.Text, step.text);
  nodeChanged.notify(node);
}

void Editor::swap(SubtreeStep& step) {
  if (step.subtree.empty()) {
    const Node& node = *document_.tvTreeView.find(step.key);
    step.place = placeOf(node);
    const RowChange change{RowChange::Remove, node.Parent(), rowOf(node)};
    rowsAboutToChange.notify(change);
    step.subtree = takeOut(document_, step.key);
    rowsChanged.notify(change);
  } else {
    const RowChange change{RowChange::Insert, document_.tvTreeView.find(step.place.parent),
                           rowAt(document_, step.place)};
    rowsAboutToChange.notify(change);
    putIn(document_, std::exchange(step.subtree, {}), step.place);
    rowsChanged.notify(change);
  }
}

void Editor::swap(MoveStep& step) {
  Node& node = *document_.tvTreeView.find(step.key);
  auto old = placeOf(node);
  const RowChange change{RowChange::Move, node.Parent(), rowOf(node),
                         document_.tvTreeView.find(step.place.parent), rowAt(document_, step.place)};
  rowsAboutToChange.notify(change);
  moveTo(document_, node, step.place);
  step.place = std::move(old);
  rowsChanged.notify(change);
}

void Editor::swap(SettingsStep& step) {
  std::swap(document_.settings, step.settings);
  std::swap(document_.settings.CompiledPath, step.settings.CompiledPath);
  std::swap(document_.settings.CompiledName, step.settings.CompiledName);
}

}  // namespace nimbrel
