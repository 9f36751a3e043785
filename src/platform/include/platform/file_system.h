#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "platform/file_error.h"

namespace nimbrel {

/// A file as it is to be.
struct NewFile {
  std::string path;
  std::string bytes;
};

/// The file system. Paths are in document form, with backslashes. What fails throws `FileError` with the path
/// and leaves what was there as it was.
class FileSystem {
 public:
  virtual ~FileSystem() = default;

  /// Whether a regular file stands there, links followed. A folder or an empty path is no file.
  virtual bool isFile(std::string_view path) const = 0;
  virtual bool isFolder(std::string_view path) const = 0;

  /// The bytes of a regular file of at most `largestFile` bytes.
  virtual std::string read(std::string_view path) const = 0;

  /// Replaces the file whole, or makes it: whoever reads sees the old bytes or all of the new ones, whenever
  /// this is cut off. The mode of an old file is kept, links are followed, and a file that is marked
  /// read-only stays.
  virtual void replace(std::string_view path, std::string_view bytes) = 0;

  /// Replaces each file so, all with one wait for the disk. Those that fail are in the findings and stay as
  /// they were; the others are replaced.
  virtual Findings replaceAll(std::span<const NewFile> newFiles);

  /// Replaces or makes a file that can be made again at will: as `replace`, but without a wait for the disk.
  virtual void generate(std::string_view path, std::string_view bytes) = 0;

  /// Generates `to` with the bytes of `from`. A file copied to itself stays as it is.
  virtual void copy(std::string_view from, std::string_view to) = 0;

  virtual void remove(std::string_view path) = 0;

  /// Makes one level; its parent is to be there. A folder that is there already is no error.
  virtual void makeFolder(std::string_view path) = 0;

  /// Removes a folder in which nothing is left.
  virtual void removeFolder(std::string_view path) = 0;

  /// The names of the files in a folder, in the order of their bytes; none if there is no such folder.
  virtual std::vector<std::string> filesIn(std::string_view folder) const = 0;

  /// No file that the program reads is near this size; a larger one is refused before it fills the memory.
  static constexpr std::size_t largestFile = std::size_t{1} << 30;
};

}  // namespace nimbrel
