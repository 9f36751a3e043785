#include "linking/relative_path.h"

#include <algorithm>
#include <cstddef>
#include <vector>

namespace nimbrel {
namespace {

/// Splits at backslashes. The result has at least one part.
std::vector<std::string_view> partsOf(std::string_view path) {
  std::vector<std::string_view> parts;
  for (auto slash = path.find('\\'); slash != std::string_view::npos; slash = path.find('\\')) {
    parts.push_back(path.substr(0, slash));
    path.remove_prefix(slash + 1);
  }
  parts.push_back(path);
  return parts;
}

}  // namespace

std::string RelativePath(std::string_view page, std::string_view target) {
  const auto pageParts = partsOf(page);
  const auto targetParts = partsOf(target);
  if (pageParts.front() != targetParts.front()) return std::string(target);

  // The last part of the shorter path never counts as shared, so equal paths give the file name.
  const std::size_t last = std::min(pageParts.size(), targetParts.size()) - 1;
  std::size_t shared = 0;
  while (shared < last && pageParts[shared] == targetParts[shared]) ++shared;

  std::string path;
  for (std::size_t i = shared; i + 1 < pageParts.size(); ++i) path += "../";
  for (std::size_t i = shared; i < targetParts.size(); ++i) path.append(targetParts[i]) += '/';
  path.pop_back();
  return path;
}

std::string_view PathFolder(std::string_view path) {
  const auto slash = path.rfind('/');
  return slash == std::string_view::npos ? std::string_view{} : path.substr(0, slash);
}

std::string_view PathFileName(std::string_view path) { return path.substr(path.rfind('/') + 1); }

}  // namespace nimbrel
