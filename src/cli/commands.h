#pragma once

#include <optional>
#include <string>
#include <vector>

#include "cli/console.h"
#include "platform/file_system.h"

/// The subcommands of `nbrc`. Paths are the system's own, as they stand in the call. An error of the files is
/// thrown as `FileError` and reported by the caller.
namespace nimbrel {

ExitStatus newCommand(const Console& console, FileSystem& files, const std::string& out);

ExitStatus showCommand(const Console& console, const FileSystem& files, const std::string& menu, bool asJson);

ExitStatus convertCommand(const Console& console, FileSystem& files, const std::string& in,
                          const std::string& out);

ExitStatus compileCommand(const Console& console, FileSystem& files, const std::optional<std::string>& home,
                          const std::string& menu, const std::string& to);

struct LinkCall {
  std::string compiled;
  std::vector<std::string> pages;
  std::string altUrl;
};
ExitStatus linkCommand(const Console& console, FileSystem& files, const LinkCall& call);

ExitStatus previewCommand(const Console& console, FileSystem& files, const std::optional<std::string>& home,
                          const std::string& menu);

ExitStatus checkCommand(const Console& console, const FileSystem& files, const std::string& menu);

}  // namespace nimbrel
