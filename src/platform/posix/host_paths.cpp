#include "platform/posix/host_paths.h"

#include <filesystem>

#include "text/windows1252.h"

namespace nimbrel {
namespace {

/// Applies `convert` to each name between the separators `from` and joins the results with `to`.
template <class Convert>
std::string convertNames(std::string_view path, char from, char to, Convert convert) {
  std::string result;
  for (;;) {
    const auto end = path.find(from);
    result += convert(path.substr(0, end));
    if (end == std::string_view::npos) return result;
    result += to;
    path.remove_prefix(end + 1);
  }
}

}  // namespace

std::string toHostPath(std::string_view documentPath) {
  return convertNames(documentPath, '\\', '/', nameToHost);
}

std::string fromHostPath(std::string_view hostPath) {
  return convertNames(hostPath, '/', '\\', nameFromHost);
}

std::string absoluteHostPath(std::string_view hostPath) {
  if (hostPath.empty()) return {};
  return std::filesystem::absolute(hostPath).lexically_normal().string();
}

}  // namespace nimbrel
