#pragma once

#include <string>
#include <string_view>

/// Between the document's form of a path (backslashes, one-byte text) and this system's own.
namespace nimbrel {

std::string toHostPath(std::string_view documentPath);
std::string fromHostPath(std::string_view hostPath);

/// The path from the root without "." and ".." steps; links are not looked at. An empty path stays empty.
std::string absoluteHostPath(std::string_view hostPath);

}  // namespace nimbrel
