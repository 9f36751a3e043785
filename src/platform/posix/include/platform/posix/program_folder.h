#pragma once

#include <optional>
#include <string>

namespace nimbrel {

/// The program's folder, which holds `libraries`, `dot.gif` and what else lies beside the program, as a host
/// path: `asked` if there is one; else the environment's NIMBREL_HOME; else the folder of the executable if
/// it holds `libraries`; else the per-user folder, which the first call fills from the installed product
/// files and a newer version brings up to date. Throws `FileError` where it cannot be filled.
std::string programFolder(const std::optional<std::string>& asked);

}  // namespace nimbrel
