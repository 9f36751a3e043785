#pragma once

#include <string_view>

/// Fixed texts of the menu file, for reader and writer.
namespace nimbrel {

/// Ends the header.
inline constexpr std::string_view treeMark = "[Menu Tree]";

/// The parent's key in the record of a root. The writer puts blanks around it.
inline constexpr std::string_view rootParent = "0";

}  // namespace nimbrel
