#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "platform/file_system.h"

/// Which files count as pictures. A menu file from a stranger can name any file of the author; only pictures are read
/// and copied.
namespace nimbrel {

/// In bytes. A larger picture is left out.
inline constexpr std::uint64_t largestPicture = std::uint64_t{64} << 20;

/// Whether the name has the ending of a picture that browsers show or that authors keep, in any case. The content is not
/// judged.
bool isPictureName(std::string_view path);

/// Whether a path stays inside the folder that it is relative to: it is not absolute, names no drive, and none of its
/// parts is empty or made of dots alone. Both slashes part names.
bool staysInside(std::string_view relativePath);

/// Why a picture cannot be used, or nullopt if it can. `user` is the key of the element that uses it.
std::optional<Finding> refusalOfPicture(const FileSystem& files, const std::string& picture,
                                        const std::string& user);

/// Why a picture that can be used should perhaps not be published, as a warning, or nullopt.
std::optional<Finding> warningOfPicture(const FileSystem& files, const std::string& picture,
                                        const std::string& user);

}  // namespace nimbrel
