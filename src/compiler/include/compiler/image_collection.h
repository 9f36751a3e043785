#pragma once

#include <string>
#include <string_view>
#include <unordered_map>

#include "compiler/compiled_menu.h"

namespace nimbrel {

/// The pictures of one script. Reads each picture once.
class PictureFolder {
 public:
  PictureFolder(const FileSystem& files, CompiledScript& script) : files_(files), script_(script) {}

  /// Whether the picture can be used (`refusalOfPicture`). If not, that is a finding, once, with its first user.
  bool has(const std::string& picture, const Node& user);

  /// Has the picture copied under its own name, and returns that with its size.
  CompiledPicture take(const std::string& picture);

 private:
  const FileSystem& files_;
  CompiledScript& script_;
  std::unordered_map<std::string, bool> known_;
  std::unordered_map<std::string, CompiledPicture> measured_;
  std::unordered_map<std::string, std::string> sources_;  // by file name in the folder
};

/// Numbers the distinct pictures of a group. Without submenus these are the pictures of the main menu and its items, and
/// of what hangs from items whose text equals that of the main menu.
void CollectImages(const Document& document, PictureFolder& folder, CompiledGroup& group);

}  // namespace nimbrel
