#pragma once

#include <string>
#include <string_view>

#include "compiler/compiled_menu.h"
#include "compiler/file_steps.h"
#include "model/document.h"
#include "text/message.h"

namespace nimbrel {

/// The paths of a compile's output, in document form.
struct CompileLayout {
  std::string baseName;       ///< `CompiledName` without its last three characters, whatever they are
  std::string libraryFolder;  ///< below `CompiledPath`
  std::string imageFolder;    ///< below `CompiledPath`
  std::string menuPath;       ///< the compiled menu
  std::string submenusPath;   ///< the submenus file of cross-frame output
};

CompileLayout compileLayout(const CompileSettings& settings);

/// Returns why a menu cannot be compiled to a file of this name, or nullptr if it can.
const Message* refusalOfCompiledName(std::string_view name);

/// Returns why the document cannot be compiled, or nullptr if it can: a document without a main menu is refused.
const Message* refusalOfCompile(const Document& document);

/// Returns why nothing may be written to the folders of libraries and images, or nullptr: they must be inside the folder
/// of the compiled menu.
const Message* refusalOfFolders(const CompileSettings& settings);

/// Compiles the document to its `CompiledPath` and `CompiledName` and replaces existing files. Requires that
/// none of the functions above refuses. A step that fails becomes a finding, and the compile continues. Returns what was
/// compiled.
CompiledMenu CompileMenu(FileSystem& files, const std::string& programFolder, const Document& document,
                         StepReport& report);

}  // namespace nimbrel
