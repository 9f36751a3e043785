#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "platform/file_error.h"

namespace nimbrel {

/// The new contents of a file.
struct NewFile {
  std::string path;
  std::string bytes;
};

/// What a file is at one moment. Two equal values mean that the file has not changed in between.
struct FileStatus {
  std::uint64_t device = 0;
  std::uint64_t inode = 0;
  std::uint64_t size = 0;     ///< bytes
  std::int64_t modified = 0;  ///< nanoseconds since 1970
  bool isPrivate = false;     ///< users other than the owner and the group may not read it

  bool operator==(const FileStatus&) const = default;
};

/// A lock, held until it is destroyed.
class FolderLock {
 public:
  virtual ~FolderLock() = default;
};

/// The file system. Paths are in document form, with backslashes. A call that fails throws `FileError` with
/// the path and changes nothing.
class FileSystem {
 public:
  virtual ~FileSystem() = default;

  /// Whether the path is a regular file or a link to one. False for an empty path.
  virtual bool isFile(std::string_view path) const = 0;
  virtual bool isFolder(std::string_view path) const = 0;

  /// Returns the bytes of a regular file. Fails if it has more than `largestFile`.
  virtual std::string read(std::string_view path) const = 0;

  /// Returns up to `count` bytes of a regular file from `offset` on; fewer at its end.
  virtual std::string readPart(std::string_view path, std::uint64_t offset, std::size_t count) const = 0;

  /// Returns nullopt if the path is not a regular file or a link to one.
  virtual std::optional<FileStatus> status(std::string_view path) const = 0;

  /// Whether the path leads to the folder or below it when all links are followed. The last parts of the path
  /// need not exist.
  virtual bool isInside(std::string_view path, std::string_view folder) const = 0;

  /// Locks folders against other programs that lock them, and waits some seconds for those if need be. Folders that
  /// cannot be locked are left out: reading and writing need no lock.
  virtual std::unique_ptr<FolderLock> lock(std::span<const std::string> folders) = 0;

  /// Locks one folder without waiting. Returns nullptr if it is locked already, also by this program, or gone.
  virtual std::unique_ptr<FolderLock> tryLock(std::string_view folder) = 0;

  /// Creates the file or replaces it atomically: after a crash or power failure it has either its old bytes
  /// or all of the new ones. Keeps the mode of an old file and follows links. Fails if the file is read-only.
  virtual void replace(std::string_view path, std::string_view bytes) = 0;

  /// The same for many files, with only one wait for the disk. Returns the failures; those files are
  /// unchanged.
  virtual Findings replaceAll(std::span<const NewFile> newFiles);

  /// Like `replace`, but without waiting for the disk: for files that can be generated again.
  virtual void generate(std::string_view path, std::string_view bytes) = 0;

  /// Generates `to` with the bytes of `from`. Does nothing if both are the same file.
  virtual void copy(std::string_view from, std::string_view to) = 0;

  /// Removes a file. Fails for a folder.
  virtual void remove(std::string_view path) = 0;

  /// Creates a folder in an existing one. Does nothing if it exists.
  virtual void makeFolder(std::string_view path) = 0;

  /// Removes an empty folder.
  virtual void removeFolder(std::string_view path) = 0;

  /// Returns the names of the files in a folder, in byte order. Empty if there is no such folder.
  virtual std::vector<std::string> filesIn(std::string_view folder) const = 0;

  /// The same for the names of folders.
  virtual std::vector<std::string> foldersIn(std::string_view folder) const = 0;

  /// In bytes. Far more than any file of ours, but not enough to exhaust the memory.
  static constexpr std::size_t largestFile = std::size_t{1} << 30;
};

}  // namespace nimbrel
