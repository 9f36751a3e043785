#pragma once

#include <cerrno>
#include <string>
#include <string_view>
#include <system_error>

#include "platform/file_error.h"

/// Failures of system calls as `FileError`. Paths are in document form.
namespace nimbrel {

/// Throws a `FileError` with the system's message for `error`.
[[noreturn]] inline void throwSystemError(std::string_view path, int error = errno) {
  throw FileError(std::string(path), std::generic_category().message(error));
}

/// Throws a `FileError` for a path with a NUL character, at which a system call would cut it off.
inline void requireUsable(std::string_view path) {
  if (path.find('\0') != std::string_view::npos) throw FileError(std::string(path), "is not a valid path");
}

}  // namespace nimbrel
