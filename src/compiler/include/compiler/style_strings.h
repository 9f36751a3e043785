#pragma once

#include <deque>
#include <string>
#include <string_view>
#include <unordered_map>

#include "model/document.h"

/// Shared styles: the distinct `nbrCreateCSS` calls of a script. The elements must hold the numbers of their
/// pictures before their style strings are made.
namespace nimbrel {

/// Each function appends a call, without a line end. `TitleStyleString` appends nothing for an element that has no
/// title, that is, one that shows neither its name nor an image.
void TitleStyleString(const TitledContainer& element, std::string& call);
void ContainerStyleString(const TitledContainer& element, std::string& call);
void ItemStyleString1(const ItemObj& element, std::string& call);
void ItemStyleString2(const ItemObj& element, std::string& call);
void ItemStyleString3(const ItemObj& element, std::string& call);

/// The distinct style calls of one script, in the order of their first use. A call's number is its zero-based
/// position; the runtime counts the calls in the same way.
class StyleCollection {
 public:
  /// Returns the number of a call as text, and adds the call if it is new. The empty call has the empty text.
  SharedText GetStyleID(std::string_view styleString);

  /// Stores the numbers in the elements: first in the container and its items, then in each submenu below it.
  /// Without submenus only the container and its items are numbered.
  void CollectStyles(Document& document, const Node& container, bool includeSubmenus);

  const std::deque<std::string>& StyleStrings() const { return StyleStrings_; }

 private:
  std::deque<std::string> StyleStrings_;
  std::unordered_map<std::string_view, SharedText> numbers_;  // keys view into StyleStrings_
};

}  // namespace nimbrel
