#pragma once

#include <filesystem>

namespace nimbrel {

// Each user has a copy of the installed product files and may change, add and delete files in it. A list in
// the copy records the files as installed, which shows what the user has changed.

/// Creates the copy, complete or not at all. If the folder exists without the product's libraries, its files
/// stay and missing ones are added. Throws `FileError`.
void makeProductCopy(const std::filesystem::path& product, const std::filesystem::path& copy);

/// Updates a copy to another version of the product. Files that the user has changed or deleted stay so;
/// unchanged files are replaced, or removed if the product has dropped them. Does nothing if the versions are
/// equal or if any file cannot be read. A file that cannot be written is tried again at the next start.
void updateProductCopy(const std::filesystem::path& product, const std::filesystem::path& copy);

}  // namespace nimbrel
