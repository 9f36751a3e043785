#include "model/outline.h"

#include <utility>
#include <vector>

#include "text/ascii.h"

namespace nimbrel {
namespace {

constexpr std::string_view blanks = " \t";

struct Line {
  std::size_t indent = 0;
  std::string_view name;
  std::string_view address;
};

Line lineOf(std::string_view text) {
  constexpr std::string_view listMarks = "-*+\x95";
  Line line;
  line.indent = std::min(text.find_first_not_of(blanks), text.size());
  text.remove_prefix(line.indent);
  if (text.size() > 1 && listMarks.find(text[0]) != std::string_view::npos &&
      blanks.find(text[1]) != std::string_view::npos) {
    text.remove_prefix(2);
  }
  const auto tab = text.find('\t', std::min(text.find_first_not_of(blanks), text.size()));
  line.name = trimmed(text.substr(0, tab));
  if (tab != std::string_view::npos) {
    text.remove_prefix(tab + 1);
    line.address = trimmed(text.substr(0, text.find('\t')));
  }
  return line;
}

/// Builds the clipboard, one item after the other.
class Outline {
 public:
  Outline(const ItemObj& item, const SubmenuObj& submenu) : item_(item), submenu_(submenu) {}

  void add(const Line& line) {
    while (!open_.empty() && open_.back().indent >= line.indent) open_.pop_back();
    ItemObj item = item_;
    setNames(item, line.name);
    if (!line.address.empty()) item.URL = line.address;
    open_.push_back({line.indent, &addNode(submenuAbove(), 'I', std::move(item))});
  }
  Clipboard take() { return std::move(clipboard_); }

 private:
  struct Open {
    std::size_t indent;
    Node* item;
  };

  /// The submenu for the next item, or nullptr at the outermost level.
  Node* submenuAbove() {
    if (open_.empty()) return nullptr;
    Node* owner = open_.back().item;
    if (owner->Child() != nullptr) return owner->Child();
    SubmenuObj submenu = submenu_;
    submenu.SubmenuName = owner->Text;
    return &addNode(owner, 'S', std::move(submenu));
  }

  Node& addNode(Node* parent, char kind, Element element) {
    auto& tree = clipboard_.tvCopyTree;
    auto key = kind + std::to_string(tree.size());
    auto text = NodeText(element);
    clipboard_.CopyColl.add(key, std::move(element));
    if (parent == nullptr) return tree.addRoot(std::move(key), std::move(text));
    return tree.add(*parent, Relationship::Child, std::move(key), std::move(text));
  }

  const ItemObj& item_;
  const SubmenuObj& submenu_;
  Clipboard clipboard_;
  std::vector<Open> open_;  ///< the item of the last line and those that it hangs from
};

}  // namespace

std::string outlineText(const Clipboard& clipboard) {
  std::string text;
  for (const Node* root : rootsOf(clipboard)) {
    for (const Node* node = root; node != nullptr; node = following(node, root)) {
      const auto* element = clipboard.CopyColl.find(node->Key);
      const auto* item = element == nullptr ? nullptr : std::get_if<ItemObj>(element);
      if (item == nullptr) continue;
      for (const Node* above = node->Parent(); above != nullptr; above = above->Parent()) {
        if (kindOf(above->Key) == Kind::Item) text += '\t';
      }
      text.append(item->ItemName1);
      if (!item->URL.empty() && item->URL != notSet) text.append("\t").append(item->URL);
      text += '\n';
    }
  }
  return text;
}

Clipboard outlined(std::string_view text, const ItemObj& item, const SubmenuObj& submenu) {
  Outline outline(item, submenu);
  while (!text.empty()) {
    const auto end = std::min(text.find_first_of("\r\n"), text.size());
    const auto line = lineOf(text.substr(0, end));
    if (!line.name.empty()) outline.add(line);
    text.remove_prefix(std::min(end + 1, text.size()));
  }
  return outline.take();
}

}  // namespace nimbrel
