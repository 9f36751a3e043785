#pragma once

/// Codes of keys as the main window receives them.
namespace nimbrel::keys {

inline constexpr int Delete = 46;

}  // namespace nimbrel::keys
