#pragma once

#include <string>
#include <string_view>

#include "model/document.h"
#include "text/message.h"

/// Cut, copy, paste and move: the operations that change the shape of a tree that stands. They change document
/// and clipboard alone; asking, selecting and marking the document dirty are their caller's.
namespace nimbrel {

/// What was last cut or copied, with its keys of that time. It has nothing to do with the system's clipboard,
/// and outlives the document that it was taken from.
struct Clipboard {
  Tree tvCopyTree;
  Elements CopyColl;  ///< a clone for each node of the tree, under the same key
};

/// Why the node of that key cannot be copied or cut; none if it can.
const Message* refusalOfCopy(std::string_view key);
const Message* refusalOfCut(std::string_view key);
/// Why what the clipboard holds cannot be pasted on a node; none if it can, or if the clipboard is empty.
const Message* refusalOfPaste(const Clipboard& clipboard, const Node& target);

/// Puts the node and all that hangs from it into the clipboard, in place of what was there. Not for a node
/// that is refused.
void CopySubtree(const Document& document, const Node& node, Clipboard& clipboard);

/// Pastes what the clipboard holds, under new keys: an item on an item directly behind it, all else as the last
/// child. Gives the new top, none with an empty clipboard, nor behind an item that a file has made a root, since
/// a second root is not saved. Not for a target that is refused. Throws
/// `std::overflow_error` where the key counter is used up; what was pasted up to there stays.
Node* PasteSubtree(Document& document, Node& target, const Clipboard& clipboard);

/// Whether an item can move among its siblings; roots cannot. kept: texts are compared, not nodes, so that an item named as
/// the first of its siblings cannot move up from wherever it stands.
bool canMoveUp(const Node& item);
bool canMoveDown(const Node& item);

/// Moves an item past its neighbour, with all that hangs from it; keys stay. False where it cannot, and then
/// nothing happens. kept: the key counter goes up by the number of nodes that move, which use none of them.
/// Throws `std::overflow_error` ahead of any change where the counter cannot.
bool MoveItemUp(Document& document, Node& item);
bool MoveItemDown(Document& document, Node& item);

/// The node that is selected once this one is gone: its next sibling, else the one ahead, else its parent.
Node* neighbourOf(const Node& node);

}  // namespace nimbrel
