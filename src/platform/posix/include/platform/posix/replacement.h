#pragma once

#include <filesystem>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <sys/stat.h>
#include <sys/types.h>

namespace nimbrel {

/// A file descriptor with an owner.
class Handle {
 public:
  explicit Handle(int descriptor = -1) : descriptor_(descriptor) {}
  Handle(Handle&& other) noexcept;
  Handle& operator=(Handle&& other) noexcept;
  ~Handle();
  int get() const { return descriptor_; }
  bool isOpen() const { return descriptor_ >= 0; }
  /// Closes the file. Returns false if that fails, as the last write may be reported only then.
  bool close();

 private:
  int descriptor_;
};

/// Writes all bytes. Returns false for an error of the system.
bool writeAll(int descriptor, std::string_view bytes);

/// Waits until the names in these folders are on the disk. Folders that cannot be flushed are left out.
void flushFolders(const std::set<std::filesystem::path>& folders);

/// Replaces a file atomically: the new bytes are written to a temporary file in the same folder, which is
/// then renamed. Before `commit()`, or if a step fails, the old file is unchanged and the temporary file is
/// removed. All steps throw `FileError` with the path in document form.
///
/// A file with several names (hard links) is written in place at the end, with a backup beside it (`writeThrough`).
class Replacement {
 public:
  /// Writes the temporary file, with mode, extended attributes and, where allowed, owner and group of the old file.
  /// `bytes` must stay until `commit`.
  Replacement(std::string_view documentPath, std::string_view bytes);
  Replacement(const Replacement&) = delete;
  Replacement& operator=(const Replacement&) = delete;
  ~Replacement();

  /// Waits until the bytes are on the disk.
  void flush();

  /// Flushes the whole device of this file, unless it is in `flushed`, and adds it there. For many files this
  /// is much faster than a flush for each.
  void flushDevice(std::set<dev_t>& flushed);

  /// Renames the temporary file to the path of the old one. The name may not yet be on the disk.
  void commit();

  /// The folder of the file, after links were followed.
  std::filesystem::path folder() const;

 private:
  explicit Replacement(std::string_view documentPath);
  void open();
  bool findOld(struct stat& old) const;
  void adoptAttributes(const struct stat& old) const;
  void adoptExtendedAttributes() const;
  void nameFile();

  std::string documentPath_;
  std::filesystem::path target_;
  std::string name_;  // of the temporary file, empty while it has none
  Handle file_;
  std::optional<std::string_view> inPlace_;  // the bytes, if the file is to be written in place
};

}  // namespace nimbrel
