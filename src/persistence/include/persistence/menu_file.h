#pragma once

#include <string>
#include <string_view>

#include "model/document.h"
#include "persistence/older_records.h"
#include "platform/file_system.h"

/// The menu file (".nbr"): the document as text of lines with CR LF, in the one-byte set.
namespace nimbrel {

/// The first value of the file is of no version we know.
class NotAMenuFile : public FileError {
 public:
  explicit NotAMenuFile(std::string path);
};

/// Empties the document and reads the file into it: `folder`, a backslash, `fileName`, or the name alone
/// where the folder is empty. Takes every version from "nbr110" on, and whatever structure the file says.
///
/// What is only noted on the way goes into `notes`. Throws `FileError` with record, line and reason where the
/// load stops; the nodes read so far are then in the document, each with its element. A file of no known
/// version (`NotAMenuFile`) leaves an empty document with its settings as they were.
void LoadMenuFile(const FileSystem& files, std::string_view folder, std::string_view fileName,
                  SubmenuCarryOver& carryOver, Document& document, Findings& notes);

/// The same from bytes that were read already; `path` is for the messages.
void readMenuFile(std::string_view bytes, const std::string& path, std::string_view folder,
                  SubmenuCarryOver& carryOver, Document& document, Findings& notes);

/// Writes the document in the current version, replacing the file whole. Throws `FileError`; the old file
/// then stands as it was.
void SaveMenuFile(FileSystem& files, std::string_view path, const Document& document);

/// What `SaveMenuFile` writes.
std::string menuFileText(const Document& document);

}  // namespace nimbrel
