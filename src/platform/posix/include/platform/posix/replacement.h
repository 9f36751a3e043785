#pragma once

#include <filesystem>
#include <set>
#include <string>
#include <string_view>
#include <sys/types.h>

namespace nimbrel {

/// An open file, closed with its scope.
class Handle {
 public:
  explicit Handle(int descriptor = -1) : descriptor_(descriptor) {}
  Handle(Handle&& other) noexcept;
  Handle& operator=(Handle&& other) noexcept;
  ~Handle();
  int get() const { return descriptor_; }
  bool isOpen() const { return descriptor_ >= 0; }
  /// Closes now, since the last of what was written may fail only then.
  bool close();

 private:
  int descriptor_;
};

/// New bytes on their way to the place of a file: written beside it, in time on the disk, renamed over it.
/// Until then, and if anything fails, the old file stands and nothing is left behind. Each step throws
/// `FileError` with the path in document form.
class Replacement {
 public:
  /// Writes the bytes, with the mode and owner of the file that will go.
  Replacement(std::string_view documentPath, std::string_view bytes);
  Replacement(const Replacement&) = delete;
  Replacement& operator=(const Replacement&) = delete;
  ~Replacement();

  /// Waits until the bytes are on the disk.
  void flush();

  /// The same for all files that were written so far to this one's device, unless that is in `flushed`. For
  /// many files one such wait is far shorter than one for each.
  void flushDevice(std::set<dev_t>& flushed);

  /// Puts the new file in the old one's place.
  void commit();

 private:
  explicit Replacement(std::string_view documentPath);
  void open(const std::filesystem::path& folder);
  void takePlace();
  void nameIn(const std::filesystem::path& folder);

  std::string documentPath_;
  std::filesystem::path target_;
  std::string name_;  // of the file while it has one of its own
  Handle file_;
};

}  // namespace nimbrel
