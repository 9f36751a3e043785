#pragma once

#include <string>
#include <string_view>

/// Names in paths of the document form, which have backslashes on every system.
namespace nimbrel {

/// What follows the last backslash; a bare file name is its own name.
std::string_view fileName(std::string_view path);

/// What stands ahead of the last backslash, empty if there is none.
std::string_view folderName(std::string_view path);

/// `folder`, a backslash, `name`; the name alone where the folder is empty.
std::string joinPath(std::string_view folder, std::string_view name);

/// Where the picture at `path` goes in `folder`: under its own name.
std::string GalleryImagePath(std::string_view path, std::string_view folder);

}  // namespace nimbrel
