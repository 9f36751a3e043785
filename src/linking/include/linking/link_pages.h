#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/file_system.h"

namespace nimbrel {

/// Links one compiled menu to each page in place, in order, with an alternative address unless it is empty. All
/// paths are absolute. A page is replaced whole; one that cannot be read or written is left as it was and
/// becomes a finding. `onPageDone` is told after each page how many are done.
Findings LinkPages(FileSystem& files, std::string_view compiledPath, const std::vector<std::string>& pages,
                   std::string_view altUrl, const std::function<void(std::size_t)>& onPageDone = {});

}  // namespace nimbrel
