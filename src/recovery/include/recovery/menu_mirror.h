#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

#include "editing/edit.h"

namespace nimbrel {

/// What changed in the bytes of a menu file. Shares nothing with the document, so that another thread can use it.
struct MenuChange {
  bool isWhole = false;  ///< all records are here, those of before are not valid any more
  std::string head;
  std::vector<std::pair<std::string, std::string>> records;  ///< key and bytes
  std::optional<std::vector<std::string>>
      order;  ///< all keys in the order of the file, if that may have changed
};

/// All of a document.
MenuChange wholeMenu(const Document& document);
/// What an edit changed that was just carried out, or taken back.
MenuChange changeBy(const Edit& edit, const Document& document);

/// The bytes of a menu file, kept by changes.
class MenuMirror {
 public:
  void apply(MenuChange change);
  void appendTo(std::string& out) const;

 private:
  std::string head_;
  std::unordered_map<std::string, std::string> records_;
  std::vector<std::string> order_;
};

}  // namespace nimbrel
