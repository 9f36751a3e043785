#pragma once

#include <string>

namespace nimbrel {

/// What the main window keeps beside the document and every form may read and write.
struct ProgramState {
  std::string programFolder;  ///< where the program lies, without a closing backslash

  std::string
      FilePath;  ///< folder of the open menu file, empty for a new document; file choosers start there
  std::string FileTitle;  ///< its name, empty for a new document
  bool IsDirty = false;   ///< the document has changes that are not saved

  std::string WebPagePath;  ///< of the last preview, like the two below; nothing reads them
  std::string WebPageName;
  std::string altURL;
  bool MultipleSelection = false;    ///< nothing sets it
  bool nbrUseSharedBorders = false;  ///< nothing reads it

  std::string StyleName;       ///< handed from the style form to the saving of the style
  std::string tmpFontSize;     ///< handed to the font size form and back
  std::string LastWebPageDir;  ///< folder last used for linking, until the program ends

  bool BlackPreview = false;                ///< the preview has a dark background
  bool isPreviewWindowLoaded = false;       ///< the preview window lives, shown or hidden
  bool isLiveExamplesWindowLoaded = false;  ///< so does the viewer of examples
};

}  // namespace nimbrel
