#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace nimbrel {

/// Overwrites a file in place, so that its other names (hard links) show the new bytes too. Until it is done, a backup is
/// beside it: `restoreBackup` takes back a write that the end of the process has interrupted. Throws `FileError` with
/// `documentPath`; the file then has its old bytes.
void writeThrough(const std::string& documentPath, const std::filesystem::path& target,
                  std::string_view bytes);

/// Puts the old bytes of a backup back into its file if that holds neither the old nor the new bytes, but parts of both.
/// A file that somebody has changed since is left alone. Returns whether the backup is no longer needed.
bool restoreBackup(const std::filesystem::path& backup);

}  // namespace nimbrel
