#pragma once

#include <filesystem>
#include <set>
#include <string>
#include <string_view>
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

/// Replaces a file atomically: the new bytes are written to a temporary file in the same folder, which is
/// then renamed. Before `commit()`, or if a step fails, the old file is unchanged and the temporary file is
/// removed. All steps throw `FileError` with the path in document form.
class Replacement {
 public:
  /// Writes the temporary file, with the mode and owner of the old file.
  Replacement(std::string_view documentPath, std::string_view bytes);
  Replacement(const Replacement&) = delete;
  Replacement& operator=(const Replacement&) = delete;
  ~Replacement();

  /// Waits until the bytes are on the disk.
  void flush();

  /// Flushes the whole device of this file, unless it is in `flushed`, and adds it there. For many files this
  /// is much faster than a flush for each.
  void flushDevice(std::set<dev_t>& flushed);

  /// Renames the temporary file to the path of the old one.
  void commit();

 private:
  explicit Replacement(std::string_view documentPath);
  void open(const std::filesystem::path& folder);
  void adoptAttributes();
  void nameIn(const std::filesystem::path& folder);

  std::string documentPath_;
  std::filesystem::path target_;
  std::string name_;  // of the temporary file, empty while it has none
  Handle file_;
};

}  // namespace nimbrel
