#pragma once

#include <string_view>

#include "text/message.h"

namespace nimbrel {

/// Menus of older builds lack functions that linked pages call.
inline constexpr int oldestLinkableBuild = 400;

/// Returns the number of the build that made a compiled file: up to four digits after the first "#" of its first
/// value, or 0 if there is no digit. A file without a "#", such as a foreign script, counts as build 200.
int compiledBuild(std::string_view bytes);

/// Returns why a compiled file with these bytes cannot be linked, or nullptr if it can.
const Message* refusalOfCompiledMenu(std::string_view bytes);

}  // namespace nimbrel
