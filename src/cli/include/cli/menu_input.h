#pragma once

#include <deque>
#include <string>

#include "cli/console.h"
#include "model/document.h"
#include "persistence/menu_file.h"

namespace nimbrel {

/// A menu file named on the command line. Its path is made absolute, because pictures are relative to its folder.
struct MenuInput {
  explicit MenuInput(const std::string& hostPath);

  /// Throws `FileError`; `document` then holds what was read before the error.
  void load(const FileSystem& files);
  /// The same for commands that only read the file: prints the notes of the reader as warnings.
  void loadWarning(const FileSystem& files, const Console& console);

  /// What of the file is lost when the document is written: what the notes say, and roots after the first.
  Findings losses() const;
  /// Whether writing the document to `target` would replace the file it was read from, with a loss.
  bool wouldLoseIn(const FileSystem& files, const std::string& target) const;

  std::string path;  ///< absolute, in document form
  Document document;
  ReadNotes notes;
};

/// The menu files of a run. They outlive the commands, because the process exits without destroying them, which is
/// slow for a large document.
using MenuInputs = std::deque<MenuInput>;

}  // namespace nimbrel
