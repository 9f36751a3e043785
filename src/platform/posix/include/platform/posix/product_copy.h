#pragma once

#include <filesystem>

namespace nimbrel {

/// A user's own copy of the installed product files, in which the author may change, add and delete. The copy keeps
/// a list of the files as they were installed, by which it can tell what is the author's work.

/// Makes the copy, all or nothing: the folder takes its name once it is whole. A folder that stands there without
/// the product's libraries keeps what it holds and gets what it lacks. Throws `FileError`.
void makeProductCopy(const std::filesystem::path& product, const std::filesystem::path& copy);

/// Brings a copy up to date with another version of the product. What the author has changed or deleted stays so;
/// what was never touched is replaced, or goes where the product has it no longer. Does nothing where the versions
/// are the same, or where not all of either can be read; a file that cannot be written is left for the next time.
void updateProductCopy(const std::filesystem::path& product, const std::filesystem::path& copy);

}  // namespace nimbrel
