#pragma once

#include <cstdint>
#include <string>
#include <variant>
#include <vector>

#include "model/subtree.h"

namespace nimbrel {

/// What the author looks at: the selected nodes, and a cell of the sheet.
struct Spot {
  std::string key;  ///< of the current node; empty: none
  int row = -1;     ///< of the sheet (`PropertyOrdinal`); -1: no cell
  int column = 0;
  std::vector<std::string> others = {};  ///< keys of the other selected nodes

  bool operator==(const Spot&) const = default;
};

/// The steps of an edit. Each holds the other side of the change: carrying it out exchanges that with what the document
/// has, so that doing it again is the way back.
struct ElementStep {
  std::string key;
  Element element;
  SharedText text;  ///< of the node
};
/// A subtree that is in the document if `subtree` is empty, else out of it.
struct SubtreeStep {
  std::string key;
  NodePlace place;
  Subtree subtree;
};
struct MoveStep {
  std::string key;
  NodePlace place;
};
/// All but the target of the last compile, which is no part of an edit.
struct SettingsStep {
  CompileSettings settings;
};
using EditStep = std::variant<ElementStep, SubtreeStep, MoveStep, SettingsStep>;

/// One change of the author: what undo takes back in one step. It is made for one state of a document, and changes
/// nothing until an `Editor` applies it.
struct Edit {
  explicit Edit(std::string editName) : name(std::move(editName)) {}

  /// Gives an element new values, and its node the text. Adds no step if both are as they were.
  void set(const Document& document, const Node& node, Element element, SharedText text);
  void set(const Document& document, const Node& node, Element element) {
    set(document, node, std::move(element), node.Text);
  }
  void insert(Insertion insertion);
  void remove(const Node& node);
  void move(const Node& node, NodePlace place, std::int16_t newCounter);
  /// Adds no step if the settings are as they were.
  void set(const Document& document, CompileSettings settings);

  std::string name;  ///< as an author reads it: "Add Item"
  std::vector<EditStep> steps;
  std::int16_t counter = -1;  ///< the key counter on the other side; -1: unchanged
  Spot before;                ///< where the author was
  Spot after;                 ///< where the change is
};

}  // namespace nimbrel
