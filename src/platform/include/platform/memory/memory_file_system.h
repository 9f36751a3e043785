#pragma once

#include <functional>
#include <map>
#include <set>

#include "platform/file_system.h"

namespace nimbrel {

/// A file system in memory. Every folder that holds something exists; others are made.
class MemoryFileSystem : public FileSystem {
 public:
  bool isFile(std::string_view path) const override;
  bool isFolder(std::string_view path) const override;
  std::string read(std::string_view path) const override;
  void replace(std::string_view path, std::string_view bytes) override;
  void generate(std::string_view path, std::string_view bytes) override { replace(path, bytes); }
  void copy(std::string_view from, std::string_view to) override;
  void remove(std::string_view path) override;
  void makeFolder(std::string_view path) override;
  void removeFolder(std::string_view path) override;
  std::vector<std::string> filesIn(std::string_view folder) const override;

  /// All files by path, for a test to fill and to look at.
  std::map<std::string, std::string, std::less<>> files;
  std::set<std::string, std::less<>> folders;

  /// Asked ahead of each call that changes something; when it says so the call fails and changes nothing.
  std::function<bool()> failsNow;

 private:
  void failIfAsked(std::string_view path) const;
};

/// A disk that fails at the call of the given number, counted from 0, and at each one after it.
inline std::function<bool()> failingFrom(int call) {
  return [call, made = 0]() mutable { return made++ >= call; };
}

}  // namespace nimbrel
