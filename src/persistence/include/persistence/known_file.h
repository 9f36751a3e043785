#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "platform/file_system.h"

namespace nimbrel {

/// The file of a document as this program last read or wrote it. Tells whether another program has changed it since.
class KnownFile {
 public:
  /// Of a document that has no file.
  KnownFile() = default;

  /// A file with these bytes.
  KnownFile(std::string path, std::string_view bytes);

  /// A file as another start of the program knew it; `hash` is that program's `hash()`.
  KnownFile(std::string path, std::size_t hash) : path_(std::move(path)), hash_(hash) {}

  /// Identifies the bytes.
  std::size_t hash() const { return hash_; }

  /// Empty if there is no file.
  const std::string& path() const { return path_; }

  /// Whether the file now has other bytes. A file that is gone or cannot be read has not changed: nothing of
  /// another program can be lost by writing it.
  bool hasChanged(const FileSystem& files);

  /// Accepts the bytes that the file has now, so that `hasChanged` returns false until the next change.
  void accept(const FileSystem& files);

 private:
  std::string path_;
  std::size_t hash_ = 0;
  std::optional<FileStatus> status_;  ///< of these bytes, if known: saves reading the file again
};

}  // namespace nimbrel
