#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include "model/document.h"
#include "platform/file_error.h"
#include "platform/file_system.h"

/// A compile as a function: from a document to plain data, which writers turn into files.
namespace nimbrel {

/// The numbers of an element's pictures and looks in its group.
struct ElementNumbers {
  static constexpr std::int32_t none = -1;
  static constexpr std::size_t mostPictures = 9;
  static constexpr std::size_t mostLooks = 3;

  /// By image slot, from 0.
  std::array<std::int32_t, mostPictures> pictures = [] {
    std::array<std::int32_t, mostPictures> each{};
    each.fill(none);
    return each;
  }();
  /// From 0. Of an item in its three states; of a menu or submenu: its container and its title, if it has one.
  std::array<std::int32_t, mostLooks> looks{none, none, none};
};

/// The part of an element that a look belongs to.
enum class LookPart : std::uint8_t { Normal, MouseOver, MouseClick, Container, Title };

/// A look, given by the first element that has it.
struct CompiledLook {
  std::size_t owner;  ///< position in `CompiledGroup::elements`
  LookPart part;
};

struct CompiledPicture {
  std::string name;        ///< of its file in the folder of pictures
  std::int32_t width = 0;  ///< pixels, like the height; 0 if they are not known
  std::int32_t height = 0;
};

struct CompiledElement {
  const Node* node;
  const Element* element;  ///< nullptr for a node of no known kind
  std::size_t below;       ///< how many elements hang from it; they follow it
  ElementNumbers numbers;
};

/// What is built at once: a menu or submenu with what hangs from it. Pictures and looks are numbered in each group from 0,
/// in the order of their first use.
struct CompiledGroup {
  bool includesSubmenus = true;
  std::vector<CompiledElement> elements;  ///< in pre-order; the first is the menu or submenu itself
  std::vector<CompiledPicture> pictures;
  std::vector<CompiledLook> looks;

  /// Calls `f(position)` for each child of an element.
  template <class F>
  void eachChild(std::size_t position, F&& f) const {
    const auto end = position + elements[position].below;
    for (auto child = position + 1; child <= end; child += elements[child].below + 1) f(child);
  }
};

/// The groups of one script, and what else it needs.
struct CompiledScript {
  std::vector<CompiledGroup> groups;
  std::vector<std::string> pictures;  ///< paths, in the order in which they are to be copied
  Findings findings;                  ///< pictures that are left out, each once
};

struct CompiledMenu {
  CompiledScript main;
  /// With submenus in another frame: a group for each submenu of the main menu's items, which `main` lacks then.
  CompiledScript submenus;
};

/// Compiles a document that has a root, which must outlive the result. Only reads, so that it can run in another thread
/// than other readers of the document. `pictures` has the picture files.
CompiledMenu compiledMenu(const Document& document, bool submenusInFrame, const FileSystem& pictures);

/// The numbers of all elements under their keys, which may outlive the document.
using KeyedNumbers = std::vector<std::pair<std::string, ElementNumbers>>;
KeyedNumbers numbersByKey(const CompiledMenu& menu);

}  // namespace nimbrel
