#pragma once

#include <string_view>

/// What reader and writer of the menu file agree upon beyond the tables.
namespace nimbrel {

inline constexpr std::string_view treeMark = "[Menu Tree]";

/// Stands in place of a parent's key in the record of a root; the writer prints it with its blanks.
inline constexpr std::string_view rootParent = "0";

}  // namespace nimbrel
