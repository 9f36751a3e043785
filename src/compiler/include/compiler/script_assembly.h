#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "compiler/compiled_menu.h"
#include "compiler/file_steps.h"

/// The whole text of a compiled menu in the classic form, and the files that it needs.
namespace nimbrel {

/// The image from whose address the script learns its own folder.
inline constexpr std::string_view pathImage = "nbrmenupath.gif";

enum class ScriptMode : std::uint8_t {
  Compile = 0,
  Preview = 1,  ///< one file, even with a submenus' frame; contains the folder of the last compile
  Gallery = 2,  ///< a preview of a sample document, in a folder that already holds the libraries
};

/// The destination of a script. Folders are relative to `basePath`.
struct ScriptTarget {
  std::string basePath;
  std::string libraryFolder;
  std::string imageFolder;
  std::string menuName;
};

/// Makes scripts with files from the program's folder: `libraries`, `dot.gif`, and the optional `auc` and `bsc`,
/// whose bytes replace the browser test and the line that selects the library.
class ScriptMaker {
 public:
  ScriptMaker(FileSteps& steps, std::string programFolder)
      : steps_(steps), programFolder_(std::move(programFolder)) {}

  /// Returns lines separated by CR LF, with none at the end. `compiled` is the main script of a compiled menu.
  std::string CreateMenuScript(ScriptMode mode, const Document& document, const CompiledScript& compiled,
                               const ScriptTarget& target);

  /// Returns the cross-frame submenus file, with each group as a separate menu; empty if there is none.
  std::string CreateSubmenusScript(const Document& document, const CompiledScript& compiled,
                                   const ScriptTarget& target);

 private:
  std::string CreateScriptPrologue(const Document& document, const ScriptTarget& target) const;
  void TakePictures(const CompiledScript& compiled, const ScriptTarget& target);
  void InstallLibraries(const ScriptTarget& target);
  void copyFromProgram(std::string_view name, std::string_view to);
  std::string overridden(std::string_view name, std::string_view line) const;

  FileSteps& steps_;
  std::string programFolder_;
};

}  // namespace nimbrel
