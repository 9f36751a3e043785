#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "model/document.h"
#include "model/subtree.h"
#include "text/message.h"

/// Copy, paste and move. These operations change only document and clipboard: asking the author, selecting a
/// node and marking the document dirty are left to the caller.
namespace nimbrel {

/// The subtree cut or copied last, with the keys it had. Independent of the system's clipboard, and of the
/// document it comes from.
struct Clipboard {
  Tree tvCopyTree;
  Elements CopyColl;  ///< a clone for each node of the tree, under the same key
};

/// Return why the node with that key cannot be copied or cut, or nullptr if it can.
const Message* refusalOfCopy(std::string_view key);
const Message* refusalOfCut(std::string_view key);
/// Returns why the clipboard cannot be pasted on a node, or nullptr if it can or is empty.
const Message* refusalOfPaste(const Clipboard& clipboard, const Node& target);

/// Replaces the contents of the clipboard by the node and its descendants. `refusalOfCopy` must not refuse
/// the node.
void CopySubtree(const Document& document, const Node& node, Clipboard& clipboard);

/// The clipboard under new keys: an item on an item directly after it, everything else as the last child. Has no nodes
/// if the clipboard is empty or the target is an item that a file has made a root, since a second root would not be
/// saved. If there are not enough key numbers it has the first nodes, down to none. `refusalOfPaste` must not refuse the
/// target.
Insertion pastedSubtree(const Document& document, const Node& target, const Clipboard& clipboard);
/// Adds it, and returns its top or nullptr. Throws `std::overflow_error` if no key numbers are left; nodes pasted by then
/// stay.
Node* PasteSubtree(Document& document, Node& target, const Clipboard& clipboard);
/// Whether key numbers were lacking for a part of the clipboard.
bool isCut(const Insertion& pasted, const Clipboard& clipboard);

/// Whether an item can move among its siblings. Roots cannot.
/// Quirk: texts are compared, not nodes, so an item with the name of its first sibling can never move up.
bool canMoveUp(const Node& item);
bool canMoveDown(const Node& item);

/// Where an item goes past its neighbour, and the counter after it. Return nullopt if it cannot move.
/// Quirk: the key counter grows by the number of nodes that move, although their keys stay. If it cannot, they throw
/// `std::overflow_error`.
struct NodeMove {
  NodePlace place;
  std::int16_t counter;
};
std::optional<NodeMove> moveUp(const Document& document, const Node& item);
std::optional<NodeMove> moveDown(const Document& document, const Node& item);

/// Move an item with its descendants past its neighbour. Keys stay. Return false, with no change, if it
/// cannot move.
bool MoveItemUp(Document& document, Node& item);
bool MoveItemDown(Document& document, Node& item);

/// The node to select after this one is removed: its next sibling, else the previous one, else its parent
/// (nullptr for an only root).
Node* neighbourOf(const Node& node);

}  // namespace nimbrel
