#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "editing/edit.h"
#include "editing/notifier.h"

namespace nimbrel {

/// One node that comes, goes or moves. Rows count from 0 among the children of the parent; nullptr stands for the roots.
struct RowChange {
  enum Kind : std::uint8_t { Insert, Remove, Move };
  Kind kind;
  const Node* parent;
  std::size_t row;
  const Node* newParent = nullptr;  ///< only for a move, like the next one
  std::size_t newRow = 0;           ///< as before the move: the row of the node in front of which it goes
};

/// Owns the open document and is the only way to change it. Keeps all edits since the document was opened.
class Editor {
 public:
  const Document& document() const { return document_; }

  /// Replaces the document and begins a new history. It counts as saved.
  void open(Document document);

  /// Carries out an edit. One without steps only marks the document as changed: the author asked for a change that
  /// made no difference. Drops the edits that were undone.
  void apply(Edit edit);

  /// The name of the edit that would be undone or done again, or nullopt.
  std::optional<std::string_view> undoName() const;
  std::optional<std::string_view> redoName() const;
  /// Return where the author was before the edit, or where its change is. Require such an edit.
  Spot undo();
  Spot redo();

  /// Whether the document differs from the one last opened or saved.
  bool isDirty() const { return isTouched_ || saved_ != done_; }
  void markSaved();

  /// Stores the target of a compile in the document. This is no edit, and undo leaves it.
  void setCompileTarget(std::string folder, std::string name);

  // What listeners are told. During a change the document is in the state before or after it, as the name says.
  Notifier<const RowChange&> rowsAboutToChange;
  Notifier<const RowChange&> rowsChanged;
  Notifier<const Node&> nodeChanged;  ///< values or text
  Notifier<> documentAboutToBeReplaced;
  Notifier<> documentReplaced;
  Notifier<const Edit&> edited;  ///< an edit as a whole was carried out or taken back
  Notifier<bool> dirtyChanged;
  Notifier<> historyChanged;  ///< what undo and redo would do

 private:
  class DirtyScope;

  void swapSteps(Edit& edit, bool forward);
  void swap(ElementStep& step);
  void swap(SubtreeStep& step);
  void swap(MoveStep& step);
  void swap(SettingsStep& step);

  Document document_;
  std::vector<Edit> edits_;
  std::size_t done_ = 0;  ///< how many of them are carried out
  std::optional<std::size_t> saved_ =
      0;                    ///< `done_` of the saved document; nullopt: those edits were dropped
  bool isTouched_ = false;  ///< an edit without steps was applied since the last save
};

}  // namespace nimbrel
