#pragma once

#include <filesystem>
#include <string>

namespace nimbrel {

/// The names of temporary files beside the files that they replace. A process locks its temporary files while it uses
/// them; those without a lock are of a process that has died, on whatever machine.
///
/// `.nimbrel-PID-NUMBER` is a new file that was not yet renamed, `.nimbrel-PID-NUMBER.backup` the backup of a file that was
/// being written in place.
std::string strayName(unsigned number);
inline constexpr const char* backupEnding = ".backup";

/// Puts back the backups of dead processes in a folder, then removes their temporary files. Only once for each folder in
/// the life of a process. Ignores failures.
void removeStrays(const std::filesystem::path& folder);

}  // namespace nimbrel
