#pragma once

#include <string>

namespace nimbrel {

/// State of the main window other than the document.
struct ProgramState {
  std::string programFolder;  ///< the folder of the program's files, without a trailing backslash

  /// The folder of the open menu file, where file dialogs start; empty for a new document.
  std::string FilePath = {};
  std::string FileTitle = {};  ///< name of the open menu file, empty for a new document
  bool IsDirty = false;        ///< the document has unsaved changes

  std::string WebPagePath = {};  ///< of the last preview, like the next two; never read
  std::string WebPageName = {};
  std::string altURL = {};
  bool MultipleSelection = false;    ///< never set
  bool nbrUseSharedBorders = false;  ///< never read

  std::string StyleName = {};       ///< result of the style form: the name of the style to save
  std::string tmpFontSize = {};     ///< argument and result of the font size form
  std::string LastWebPageDir = {};  ///< folder last used for linking in this session
};

}  // namespace nimbrel
