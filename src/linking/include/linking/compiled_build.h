#pragma once

#include <string_view>

#include "text/message.h"

namespace nimbrel {

/// Menus of an older build lack what linked pages call.
inline constexpr int oldestLinkableBuild = 400;

/// The number of the build that made the compiled file of these bytes: the digits behind the first "#" of its
/// first value, four at most, none for 0. Without a "#", as in any foreign script, it is 200.
int compiledBuild(std::string_view bytes);

/// Why the compiled file of these bytes cannot be linked; none if it can.
const Message* refusalOfCompiledMenu(std::string_view bytes);

}  // namespace nimbrel
