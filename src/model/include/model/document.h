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

/// What steers a compile. It travels with the document.
struct CompileSettings {
  std::string CompiledPath;      ///< folder of the last compile, empty until there was one
  std::string CompiledName;      ///< file name of the last compile, with its extension
  std::string nbrLibraryPath;    ///< library folder under CompiledPath, empty for the default
  std::string nbrImagePath;      ///< image folder under CompiledPath, empty for the default
  bool nbrOptimize = false;      ///< Mouse Click looks as Mouse Over
  std::string nbrSubmenusFrame;  ///< frame that receives the submenus; not empty: cross-frame output
  std::int32_t nbrSubmenusFrameOffset = 0;  ///< offset of the submenus in that frame, pixels
  bool nbrFrontPageSupport = false;         ///< shared borders are supported

  bool operator==(const CompileSettings&) const = default;
};

/// One value of the menu file's header.
struct CompileSetting {
  FileVersion since;  ///< the first version whose header has it
  std::string_view name;
  std::variant<std::string CompileSettings::*, bool CompileSettings::*, std::int32_t CompileSettings::*>
      field;
};

/// In file order.
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

/// The document: the tree says what hangs from what, `ElementColl` holds the element of each node under the
/// node's key. A document that was built here holds the same keys in both, one main menu as its root, items
/// under menus, and at most one submenu under an item. A file may say otherwise, so whoever walks a document
/// takes it as it is.
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

  /// The element of a node, none for a foreign node that a file brought.
  Element* element(const Node& node) { return ElementColl.find(node.Key); }
  const Element* element(const Node& node) const { return ElementColl.find(node.Key); }

  /// The element of a node if it is of that class.
  template <class E>
  E* get(const Node& node) {
    return std::get_if<E>(element(node));
  }

  /// Equal trees, elements, counters and settings. The order of adding has no meaning.
  bool operator==(const Document& other) const;
};

}  // namespace nimbrel
