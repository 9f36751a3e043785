#pragma once

#include <string>
#include <string_view>

#include "compiler/file_steps.h"
#include "model/document.h"
#include "text/message.h"

namespace nimbrel {

/// The files of a compile, in document form, from the document's settings.
struct CompileLayout {
  std::string baseName;       ///< `CompiledName` less its last three characters, whatever they are
  std::string libraryFolder;  ///< below `CompiledPath`
  std::string imageFolder;    ///< below `CompiledPath`
  std::string menuPath;       ///< of the compiled menu
  std::string submenusPath;   ///< of the submenus file, which cross-frame output adds
};

CompileLayout compileLayout(const CompileSettings& settings);

/// Why a file name cannot be compiled to; none if it can.
const Message* refusalOfCompiledName(std::string_view name);

/// Why the document cannot be compiled; none if it can. A refused document has no main menu.
const Message* refusalOfCompile(const Document& document);

/// Compiles the document to its `CompiledPath` and `CompiledName`, replacing what is there. Neither name nor
/// document is refused. Each step that fails becomes a finding; the others are made.
void CompileMenu(FileSystem& files, const std::string& programFolder, Document& document, StepReport& report);

}  // namespace nimbrel
