#pragma once

#include <cstdint>
#include <string>

#include "compiler/file_steps.h"
#include "model/document.h"

/// The text of a compiled menu, from the first line to the last, and the files that it needs beside it. The
/// elements take the numbers of their pictures and styles on the way.
namespace nimbrel {

enum class ScriptMode : std::uint8_t {
  Compile = 0,
  Preview = 1,  ///< one file, whatever the submenus' frame; tells the page where the last compile went
  Gallery = 2,  ///< the same on a sample document, in a folder that holds its libraries already
};

/// Where a script goes. Folders are relative to `basePath`.
struct ScriptTarget {
  std::string basePath;
  std::string libraryFolder;
  std::string imageFolder;
  std::string menuName;
};

/// Makes scripts with what lies in the program's folder: `libraries`, `dot.gif`, and the optional `auc` and
/// `bsc`, whose bytes replace the support test and the choice of the runtime.
class ScriptMaker {
 public:
  ScriptMaker(FileSteps& steps, std::string programFolder)
      : steps_(steps), programFolder_(std::move(programFolder)) {}

  /// Lines parted by CR LF, none behind the last. Without submenus it is the main file of a cross-frame menu.
  std::string CreateMenuScript(ScriptMode mode, Document& document, const ScriptTarget& target,
                               bool includeSubmenus);

  /// The cross-frame submenus file: each submenu of the main menu's items as a menu of its own. Empty if
  /// there is none.
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
