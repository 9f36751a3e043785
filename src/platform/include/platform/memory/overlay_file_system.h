#pragma once

#include "platform/memory/memory_file_system.h"

namespace nimbrel {

/// Reads the files of another file system, and keeps in memory what is written. Nothing reaches the other one. Only
/// what was written here is listed and can be removed.
class OverlayFileSystem : public FileSystem {
 public:
  /// `base` must outlive the overlay.
  explicit OverlayFileSystem(const FileSystem& base) : base_(base) {}

  /// What was written here.
  const MemoryFileSystem& written() const { return written_; }
  const FileSystem& base() const { return base_; }

  bool isFile(std::string_view path) const override { return holder(path).isFile(path); }
  bool isFolder(std::string_view path) const override;
  std::string read(std::string_view path) const override { return holder(path).read(path); }
  std::string readPart(std::string_view path, std::uint64_t offset, std::size_t count) const override;
  std::optional<FileStatus> status(std::string_view path) const override;
  bool isInside(std::string_view path, std::string_view folder) const override;
  // Memory belongs to this program alone.
  std::unique_ptr<FolderLock> lock(std::span<const std::string>) override {
    return std::make_unique<FolderLock>();
  }
  std::unique_ptr<FolderLock> tryLock(std::string_view) override { return std::make_unique<FolderLock>(); }
  void replace(std::string_view path, std::string_view bytes) override;
  void generate(std::string_view path, std::string_view bytes) override { replace(path, bytes); }
  void copy(std::string_view from, std::string_view to) override { replace(to, read(from)); }
  void remove(std::string_view path) override { written_.remove(path); }
  void makeFolder(std::string_view path) override;
  void removeFolder(std::string_view path) override { written_.removeFolder(path); }
  std::vector<std::string> filesIn(std::string_view folder) const override {
    return written_.filesIn(folder);
  }
  std::vector<std::string> foldersIn(std::string_view folder) const override {
    return written_.foldersIn(folder);
  }

 private:
  const FileSystem& holder(std::string_view path) const;
  void adoptFolder(std::string_view path);

  const FileSystem& base_;
  MemoryFileSystem written_;
};

}  // namespace nimbrel
