#pragma once

#include <deque>
#include <string>

#include "model/document.h"
#include "persistence/menu_file.h"

namespace nimbrel {

/// A menu file named on the command line. Its folder is made absolute, so that pictures beside it are found.
struct MenuInput {
  explicit MenuInput(const std::string& hostPath);

  /// Throws `FileError`; what was read ahead of it is in `document` all the same.
  void load(const FileSystem& files);

  std::string path;  ///< absolute, in document form
  Document document;
  Findings notes;
};

/// The menu files of a run. They outlive its commands: a process ends sooner than it could take a large
/// document apart.
using MenuInputs = std::deque<MenuInput>;

}  // namespace nimbrel
