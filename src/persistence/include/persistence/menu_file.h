#pragma once

#include <string>
#include <string_view>

#include "model/document.h"
#include "persistence/file_handle.h"
#include "persistence/older_records.h"
#include "platform/file_system.h"

/// The menu file (".nbr"): a document as one-byte text. `docs/formats.md` describes it.
namespace nimbrel {

/// Thrown if the first value of a file is not the magic of a known version.
class NotAMenuFile : public FileError {
 public:
  explicit NotAMenuFile(std::string path);
};

/// Replaces the document by the menu file `fileName` in `folder` (empty: the name is the whole path). Reads
/// all versions of `fileFormats`. Nodes may come in any order with parents first, and in any structure.
///
/// Oddities that do not stop the reading are added to `notes`. Throws `FileError` with record, line and
/// reason if the reading stops; the document then contains the nodes read so far, each with its element. For
/// a file of no known version it throws `NotAMenuFile`; the document is then empty and its settings are
/// unchanged.
void LoadMenuFile(const FileSystem& files, std::string_view folder, std::string_view fileName,
                  SubmenuCarryOver& carryOver, Document& document, ReadNotes& notes);

/// The same for the bytes of a file. `path` is used in messages, `folder` for images that begin with "*".
void readMenuFile(std::string_view bytes, const std::string& path, std::string_view folder,
                  SubmenuCarryOver& carryOver, Document& document, ReadNotes& notes);

/// Writes the document in the current version and replaces the file as a whole. Throws `FileError`; the old
/// file is then unchanged.
void SaveMenuFile(FileSystem& files, std::string_view path, const Document& document);

/// The bytes that `SaveMenuFile` writes.
std::string menuFileText(const Document& document);

/// The parts of these bytes: the head with the settings, then for each node, in tree order from the first root, its
/// record. A record depends on the node, its parent's key and its element alone.
std::string menuFileHead(const CompileSettings& settings);
std::string menuFileRecord(const Document& document, const Node& node);

}  // namespace nimbrel
