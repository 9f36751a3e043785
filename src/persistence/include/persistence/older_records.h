#pragma once

#include <cstdint>
#include <string_view>

#include "model/element.h"
#include "persistence/file_handle.h"

/// The records of file versions without closing markers. Properties that a version lacks stay as they are in
/// a new object, empty and zero.
namespace nimbrel {

/// How submenus open. These versions store it once, in the main menu's record; each submenu record after it
/// gets a copy. All zero when the program starts.
struct SubmenuCarryOver {
  std::uint8_t bcSubmenusWhen = 0;
  float bcSubmenusWhere = 0;
  std::uint8_t bcSubmenusHow = 0;
};

/// Reads the values of one record into a new element. An image that begins with "*" has that
/// character replaced by `FPath`. Throws `FileError` if a value cannot be converted; the values before it are
/// then in the element.
void readOlderRecord(FileHandle& file, FileVersion version, std::string_view FPath,
                     SubmenuCarryOver& carryOver, Element& element);

}  // namespace nimbrel
