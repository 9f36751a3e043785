#pragma once

#include <optional>
#include <string>

namespace nimbrel {

/// Returns the folder of the program's files (`libraries`, `dot.gif`, the gallery and so on) as a host path:
/// `asked` if given; else the environment variable NIMBREL_HOME; else the folder of the executable if it
/// contains `libraries`; else the user's copy of the installed files, which is created or updated first.
/// Throws `FileError` if it cannot be created.
std::string programFolder(const std::optional<std::string>& asked);

/// Returns the folder of what the user's programs keep between two starts, as a host path, and creates it if possible:
/// `nimbrel` in XDG_STATE_HOME, or in `.local/state` of the home folder.
std::string stateFolder();

}  // namespace nimbrel
