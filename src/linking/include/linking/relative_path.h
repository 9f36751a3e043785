#pragma once

#include <string>
#include <string_view>

/// Paths from a page to its compiled menu.
namespace nimbrel {

/// Returns the path from the page's folder to the target, with forward slashes. Both arguments are absolute paths
/// with backslashes; comparison is case-sensitive. A target on another drive is returned unchanged.
std::string RelativePath(std::string_view page, std::string_view target);

/// Returns the part before the last "/", or an empty view. The result views into `path`.
std::string_view PathFolder(std::string_view path);

/// Returns the part after the last "/", or the whole path. The result views into `path`.
std::string_view PathFileName(std::string_view path);

}  // namespace nimbrel
