#pragma once

#include <string>
#include <string_view>

/// Conversion between paths in document form (backslashes, one-byte text) and in the host's form.
namespace nimbrel {

std::string toHostPath(std::string_view documentPath);
std::string fromHostPath(std::string_view hostPath);

/// Makes a path absolute and removes "." and ".." without resolving links. An empty path stays empty.
std::string absoluteHostPath(std::string_view hostPath);

}  // namespace nimbrel
