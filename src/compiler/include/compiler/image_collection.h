#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "compiler/file_steps.h"
#include "compiler/image_info.h"
#include "model/document.h"

namespace nimbrel {

/// The image folder of one compile. Reads each picture once and copies it to the folder under its own name.
class ImageFolder {
 public:
  ImageFolder(FileSteps& steps, std::string path) : steps_(steps), path_(std::move(path)) {}

  /// Whether the picture can be used (`refusalOfPicture`). If not, that is reported once, with its first user.
  bool has(const std::string& picture, const Node& user);

  /// Copies the picture into the folder and returns its size.
  CImageInfo take(const std::string& picture);

 private:
  FileSteps& steps_;
  std::string path_;
  std::unordered_map<std::string, bool> known_;
  std::unordered_map<std::string, CImageInfo> measured_;
  std::unordered_map<std::string, std::string> sources_;  // by file name in the folder
};

/// The distinct pictures of one script, in the order of their first use.
class ImageCollection {
 public:
  explicit ImageCollection(ImageFolder& folder) : folder_(folder) {}

  /// Walks the tree from `top` in depth-first preorder and numbers the pictures of each element from 1; an empty
  /// slot gets 0. Without submenus the walk stops at the main menu's items, except that it enters items whose text
  /// equals that of the main menu.
  void CollectImages(Document& document, const Node& top, bool includeSubmenus);

  /// The "nbrImagesColl" line, without a line end; empty if there is no picture.
  std::string tableLine() const;

 private:
  float numberOf(std::string_view path, const Node& user);

  ImageFolder& folder_;
  std::vector<std::string> ImageNames;
  std::vector<std::int32_t> ImageWidths;
  std::vector<std::int32_t> ImageHeights;
  std::unordered_map<std::string, std::size_t> positions_;  // in ImageNames, from 1, by name
  std::unordered_map<std::string, float> numbers_;          // by path
};

}  // namespace nimbrel
