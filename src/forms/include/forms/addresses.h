#pragma once

#include <string_view>

/// Web pages of the makers of the program.
namespace nimbrel::addresses {

inline constexpr std::string_view home = "https://nimbrel.example/";
inline constexpr std::string_view support = "https://nimbrel.example/support";

}  // namespace nimbrel::addresses
