#pragma once

#include <string>
#include <string_view>

/// From a page to the compiled menu that it shows.
namespace nimbrel {

/// The path from the page's folder to the target, with forward slashes. Both are absolute paths with
/// backslashes and are compared with case. On another drive the target comes back unchanged.
std::string RelativePath(std::string_view page, std::string_view target);

/// What stands ahead of the last "/", empty if there is none. A view into the path.
std::string_view PathFolder(std::string_view path);

/// What follows the last "/", the whole text if there is none. A view into the path.
std::string_view PathFileName(std::string_view path);

}  // namespace nimbrel
