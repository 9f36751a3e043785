#pragma once

#include <cstdint>
#include <string_view>

#include "model/element.h"
#include "persistence/file_handle.h"

/// The records of menu files and style files of earlier releases, which have fewer values and no closing
/// marker. What a record does not carry stays as an object is created, empty and zero, not at its default.
namespace nimbrel {

/// How submenus open, which earlier releases kept once, in the main menu's record, until the submenu records
/// behind it have taken it over. Zero when the program starts.
struct SubmenuCarryOver {
  std::uint8_t bcSubmenusWhen = 0;
  float bcSubmenusWhere = 0;
  std::uint8_t bcSubmenusHow = 0;
};

/// Both throw `FileError` at a value that does not convert.
void ReadPropertiesFromFile11(FileHandle& file, std::string_view FPath, SubmenuCarryOver& carryOver,
                              Element& element);
void ReadPropertiesFromFile12(FileHandle& file, std::string_view FPath, SubmenuCarryOver& carryOver,
                              Element& element);

}  // namespace nimbrel
