#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>

namespace nimbrel {

/// A hash for short texts such as keys. It uses the first and last eight bytes and the size, so longer texts
/// that differ only between them collide.
inline std::size_t shortHash(std::string_view text) {
  constexpr std::size_t word = sizeof(std::uint64_t);
  std::uint64_t first = 0;
  std::uint64_t last = 0;
  if (text.size() >= word) {
    std::memcpy(&first, text.data(), word);
    std::memcpy(&last, text.data() + text.size() - word, word);
  } else if (text.size() >= word / 2) {
    std::memcpy(&first, text.data(), word / 2);
    std::memcpy(&last, text.data() + text.size() - word / 2, word / 2);
  } else {
    for (const char c : text) first = first << 8 | static_cast<unsigned char>(c);
  }
  constexpr std::uint64_t mixer = 0x9E3779B97F4A7C15;  // 2^64 by the golden ratio
  std::uint64_t hash = (first ^ (text.size() << 56)) * mixer;
  hash = (hash ^ hash >> 32 ^ last) * mixer;
  return static_cast<std::size_t>(hash ^ hash >> 29);
}

}  // namespace nimbrel
