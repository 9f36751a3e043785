#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "compiler/file_steps.h"
#include "model/document.h"

/// The whole text of a compiled menu, and the files that it needs. Making a script stores the numbers of pictures
/// and styles in the elements.
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

  /// Returns lines separated by CR LF, with none at the end. Without submenus it makes the main file of a
  /// cross-frame menu.
  std::string CreateMenuScript(ScriptMode mode, Document& document, const ScriptTarget& target,
                               bool includeSubmenus);

  /// Returns the cross-frame submenus file, with each submenu of the main menu's items as a separate menu; empty
  /// if there is no submenu.
  std::string CreateSubmenusScript(Document& document, const ScriptTarget& target);

 private:
  std::string CreateScriptPrologue(const Document& document, const ScriptTarget& target) const;
  void InstallLibraries(const ScriptTarget& target);
  void copyFromProgram(std::string_view name, std::string_view to);
  std::string overridden(std::string_view name, std::string_view line) const;

  FileSteps& steps_;
  std::string programFolder_;
};

}  // namespace nimbrel
