#pragma once

#include <functional>
#include <map>
#include <set>

#include "platform/file_system.h"

namespace nimbrel {

/// A file system in memory. A folder exists if it was created or a file in it exists.
class MemoryFileSystem : public FileSystem {
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
  void generate(std::string_view path, std::string_view bytes) override { replace(path, bytes); }
  void copy(std::string_view from, std::string_view to) override;
  void remove(std::string_view path) override;
  void makeFolder(std::string_view path) override;
  void removeFolder(std::string_view path) override;
  std::vector<std::string> filesIn(std::string_view folder) const override;
  std::vector<std::string> foldersIn(std::string_view folder) const override;

  /// All files by path. Tests fill and check it.
  std::map<std::string, std::string, std::less<>> files;
  std::set<std::string, std::less<>> folders;

  /// Called before each change. If it returns true, the call fails and changes nothing.
  std::function<bool()> failsNow;

 private:
  void failIfAsked(std::string_view path) const;
};

/// For `failsNow`: fails from the given call on, counted from 0.
inline std::function<bool()> failingFrom(int call) {
  return [call, made = 0]() mutable { return made++ >= call; };
}

}  // namespace nimbrel
