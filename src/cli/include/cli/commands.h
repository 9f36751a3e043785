#pragma once

#include <optional>
#include <string>
#include <vector>

#include "cli/console.h"
#include "cli/menu_input.h"
#include "platform/file_system.h"

/// The subcommands of `nbrc`. Each loads its own menu file. All other paths are host paths, as specified on the
/// command line. Each throws `FileError` for an error of the file system, which the caller reports.
namespace nimbrel {

ExitStatus newCommand(const Console& console, FileSystem& files, const std::string& out);

ExitStatus showCommand(const Console& console, const FileSystem& files, MenuInput& input, bool asJson);

ExitStatus convertCommand(const Console& console, FileSystem& files, MenuInput& input,
                          const std::string& out);

ExitStatus compileCommand(const Console& console, FileSystem& files, const std::optional<std::string>& home,
                          MenuInput& input, const std::string& to);

struct LinkCall {
  std::string compiled;
  std::vector<std::string> pages;
  std::string altUrl;
};
ExitStatus linkCommand(const Console& console, FileSystem& files, const LinkCall& call);

ExitStatus previewCommand(const Console& console, FileSystem& files, const std::optional<std::string>& home,
                          MenuInput& input);

struct PlayCall {
  std::string macro;     ///< a path, or "-" for standard input
  std::string settings;  ///< a path; empty: start with empty settings and write none
  std::string state;     ///< the folder for recovery files; empty: there is no recovery
};
ExitStatus playCommand(const Console& console, FileSystem& files, const std::optional<std::string>& home,
                       const PlayCall& call);

struct StyleCall {
  std::string name;
  std::string out;
  std::string key;
  std::string scope = "menu";
};
ExitStatus styleListCommand(const Console& console, const FileSystem& files,
                            const std::optional<std::string>& home);
ExitStatus styleCreateCommand(const Console& console, FileSystem& files,
                              const std::optional<std::string>& home, MenuInput& input,
                              const std::string& name);
ExitStatus styleApplyCommand(const Console& console, FileSystem& files,
                             const std::optional<std::string>& home, MenuInput& input, const StyleCall& call);

ExitStatus checkCommand(const Console& console, const FileSystem& files, MenuInput& input);

}  // namespace nimbrel
