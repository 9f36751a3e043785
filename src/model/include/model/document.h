#pragma once

#include <array>
#include <cstdint>
#include <limits>
#include <string>
#include <string_view>
#include <variant>

#include "model/element.h"
#include "model/tree.h"

namespace nimbrel {

/// The settings of a compile, stored with the document.
struct CompileSettings {
  std::string CompiledPath;                 ///< folder of the last compile, empty if there was none
  std::string CompiledName;                 ///< file name of the last compile, with its extension
  std::string nbrLibraryPath;               ///< library folder under CompiledPath, empty for the default
  std::string nbrImagePath;                 ///< image folder under CompiledPath, empty for the default
  bool nbrOptimize = false;                 ///< items look the same in Mouse Click as in Mouse Over
  std::string nbrSubmenusFrame;             ///< frame that shows the submenus; empty: the frame of the menu
  std::int32_t nbrSubmenusFrameOffset = 0;  ///< offset of the submenus in that frame, pixels
  bool nbrFrontPageSupport = false;         ///< support for shared borders

  bool operator==(const CompileSettings&) const = default;
};

/// One compile setting, a value of the menu file's header.
struct CompileSetting {
  FileVersion since;  ///< the first version whose header has it
  std::string_view name;
  std::variant<std::string CompileSettings::*, bool CompileSettings::*, std::int32_t CompileSettings::*>
      field;
};

/// All compile settings in file order.
inline constexpr std::array compileSettings{
    CompileSetting{V130, "CompiledPath", &CompileSettings::CompiledPath},
    CompileSetting{V130, "CompiledName", &CompileSettings::CompiledName},
    CompileSetting{V200, "nbrLibraryPath", &CompileSettings::nbrLibraryPath},
    CompileSetting{V200, "nbrImagePath", &CompileSettings::nbrImagePath},
    CompileSetting{V200, "nbrOptimize", &CompileSettings::nbrOptimize},
    CompileSetting{V200, "nbrSubmenusFrame", &CompileSettings::nbrSubmenusFrame},
    CompileSetting{V200, "nbrSubmenusFrameOffset", &CompileSettings::nbrSubmenusFrameOffset},
    CompileSetting{V200, "nbrFrontPageSupport", &CompileSettings::nbrFrontPageSupport},
};

/// The document: a tree of nodes, and in `ElementColl` the element of each node under the node's key. Our own
/// operations build documents with one main menu as the root, items under menus and at most one submenu under
/// an item. A file may break these rules, and may have nodes of no known kind, which have no element; code
/// that walks a document must cope with both.
struct Document {
  /// The largest number that a key can have.
  static constexpr std::int16_t largestKeyNumber = std::numeric_limits<std::int16_t>::max();

  Tree tvTreeView;
  Elements ElementColl;
  /// The number of the next new key, greater than every number in use.
  std::int16_t NextKeyNumber = 0;
  CompileSettings settings;

  /// Removes all nodes and elements and counts keys from 0 again. The settings stay.
  void clear();

  /// The element of a node, or nullptr if its key is of no known kind, which only a file can bring.
  Element* element(const Node& node) { return ElementColl.find(node.Key); }
  const Element* element(const Node& node) const { return ElementColl.find(node.Key); }

  /// The element of a node, or nullptr if it is not of class `E`.
  template <class E>
  E* get(const Node& node) {
    return std::get_if<E>(element(node));
  }

  /// Compares trees, elements, counter and settings. The order of insertion does not matter.
  bool operator==(const Document& other) const;
};

}  // namespace nimbrel
