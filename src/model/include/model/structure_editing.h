#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "model/document.h"
#include "model/subtree.h"
#include "text/message.h"

/// Copy, paste and move. These operations change only document and clipboard: asking the author, selecting a
/// node and marking the document dirty are left to the caller.
namespace nimbrel {

/// The nodes cut or copied last, with all that hangs from them and the keys they had. Independent of the system's
/// clipboard, and of the document they come from.
struct Clipboard {
  Tree tvCopyTree;    ///< with a root for each of the nodes
  Elements CopyColl;  ///< a clone for each node of the tree, under the same key
};

/// Return why the node with that key cannot be copied or cut, or nullptr if it can.
const Message* refusalOfCopy(std::string_view key);
const Message* refusalOfCut(std::string_view key);
/// Returns why the clipboard cannot be pasted on a node, or nullptr if it can or is empty.
const Message* refusalOfPaste(const Clipboard& clipboard, const Node& target);

/// Nodes of a document, in tree order.
using Nodes = std::vector<const Node*>;

/// These nodes in tree order, without those that hang from another one of them.
Nodes topmost(const Document& document, const Nodes& nodes);

/// Replaces the contents of the clipboard by the nodes, none of which hangs from another, and their descendants.
/// `refusalOfCopy` must not refuse any.
void CopySubtrees(const Document& document, const Nodes& nodes, Clipboard& clipboard);

/// The clipboard under new keys, in order. If there are not enough key numbers it has the first nodes, down to none.
using Insertions = std::vector<Insertion>;
/// Items on an item go directly after it, everything else becomes the last child. Is empty if the clipboard is, or if the
/// target is an item that a file has made a root, since a second root would not be saved. `refusalOfPaste` must not
/// refuse the target.
Insertions pastedSubtrees(const Document& document, const Node& target, const Clipboard& clipboard);
/// Adds them, and returns the first top or nullptr. Throws `std::overflow_error` if no key numbers are left; nodes pasted
/// by then stay.
Node* PasteSubtrees(Document& document, Node& target, const Clipboard& clipboard);
/// Whether key numbers were lacking for a part of the clipboard. `pasted` must not be in the document yet.
bool isCut(const Document& document, const Insertions& pasted, const Clipboard& clipboard);

/// Where dragged nodes go, seen from the node under the pointer.
enum class Drop : std::uint8_t { Before, After, Into };

/// The place for nodes, none of which hangs from another: items before or after an item, or at the end of a menu or of
/// an item's submenu; one submenu into an item without one. Returns nullopt where they cannot go.
std::optional<NodePlace> dropPlace(const Nodes& nodes, const Node& target, Drop drop);
/// The same for nodes of the same document that move there. They cannot go below one of themselves, or where they are.
std::optional<NodePlace> movePlace(const Nodes& nodes, const Node& target, Drop drop);
/// The clipboard under new keys, for a place that `dropPlace` gives.
Insertions insertionsAt(const Document& document, const NodePlace& place, const Clipboard& clipboard);

/// The roots of a clipboard.
Nodes rootsOf(const Clipboard& clipboard);

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
