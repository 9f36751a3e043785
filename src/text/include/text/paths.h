#pragma once

#include <string>
#include <string_view>

/// Parts of paths in document form, which have backslashes on every system.
namespace nimbrel {

/// The part after the last backslash, or the whole path if there is none.
std::string_view fileName(std::string_view path);

/// The part before the last backslash, empty if there is none.
std::string_view folderName(std::string_view path);

/// `folder`, a backslash and `name`; only the name if the folder is empty.
std::string joinPath(std::string_view folder, std::string_view name);

/// The path of a copy, in `folder`, of the picture at `path`.
std::string GalleryImagePath(std::string_view path, std::string_view folder);

}  // namespace nimbrel
