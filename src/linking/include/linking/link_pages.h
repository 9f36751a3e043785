#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/file_system.h"

namespace nimbrel {

/// Links a compiled menu to each page in place, in order. `altUrl` is the address for browsers without support, or
/// empty. All paths are absolute. A page is replaced atomically; one that cannot be read or written stays unchanged
/// and becomes a finding. `onPageDone` is called after each page with the number of pages done.
Findings LinkPages(FileSystem& files, std::string_view compiledPath, const std::vector<std::string>& pages,
                   std::string_view altUrl, const std::function<void(std::size_t)>& onPageDone = {});

}  // namespace nimbrel
