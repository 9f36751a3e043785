#pragma once

#include "platform/file_system.h"

namespace nimbrel {

/// The file system of the machine.
class HostFileSystem : public FileSystem {
 public:
  bool isFile(std::string_view path) const override;
  bool isFolder(std::string_view path) const override;
  std::string read(std::string_view path) const override;
  std::string readPart(std::string_view path, std::uint64_t offset, std::size_t count) const override;
  std::optional<FileStatus> status(std::string_view path) const override;
  bool isInside(std::string_view path, std::string_view folder) const override;
  std::unique_ptr<FolderLock> lock(std::span<const std::string> folders) override;
  std::unique_ptr<FolderLock> tryLock(std::string_view folder) override;
  void replace(std::string_view path, std::string_view bytes) override;
  Findings replaceAll(std::span<const NewFile> newFiles) override;
  void generate(std::string_view path, std::string_view bytes) override;
  void copy(std::string_view from, std::string_view to) override;
  void remove(std::string_view path) override;
  void makeFolder(std::string_view path) override;
  void removeFolder(std::string_view path) override;
  std::vector<std::string> filesIn(std::string_view folder) const override;
  std::vector<std::string> foldersIn(std::string_view folder) const override;
};

}  // namespace nimbrel
