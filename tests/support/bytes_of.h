#pragma once

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

namespace nimbrel {

/// The bytes of a file, empty if it cannot be read.
inline std::string bytesOf(const std::filesystem::path& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

}  // namespace nimbrel
