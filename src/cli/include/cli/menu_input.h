#pragma once

#include <deque>
#include <string>

#include "model/document.h"
#include "persistence/menu_file.h"

namespace nimbrel {

/// A menu file named on the command line. Its path is made absolute, because pictures are relative to its folder.
struct MenuInput {
  explicit MenuInput(const std::string& hostPath);

  /// Throws `FileError`; `document` then holds what was read before the error.
  void load(const FileSystem& files);

  std::string path;  ///< absolute, in document form
  Document document;
  Findings notes;
};

/// The menu files of a run. They outlive the commands, because the process exits without destroying them, which is
/// slow for a large document.
using MenuInputs = std::deque<MenuInput>;

}  // namespace nimbrel
