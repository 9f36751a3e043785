#pragma once

#include <optional>
#include <string>
#include <vector>

#include "cli/console.h"
#include "cli/menu_input.h"
#include "platform/file_system.h"

/// The subcommands of `nbrc`. Each takes the menu file that it works on, not loaded yet. Other paths are the system's own, as they stand in the call. An error of the files is
/// thrown as `FileError` and reported by the caller.
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
  std::string settings;  ///< a path, empty for settings that end with the run
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
