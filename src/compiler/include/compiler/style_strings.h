#pragma once

#include <deque>
#include <string>
#include <string_view>
#include <unordered_map>

#include "model/document.h"

/// Shared looks: the calls of `nbrCreateCSS`, each distinct one once. The numbers of the pictures must be in
/// the elements before their style strings are made.
namespace nimbrel {

/// Each appends a call, without a line end. A title's is empty where the element has none: neither a name nor an image is shown.
void TitleStyleString(const MenuObj& element, std::string& call);
void TitleStyleString(const SubmenuObj& element, std::string& call);
void ContainerStyleString(const MenuObj& element, std::string& call);
void ContainerStyleString(const SubmenuObj& element, std::string& call);
void ItemStyleString1(const ItemObj& element, std::string& call);
void ItemStyleString2(const ItemObj& element, std::string& call);
void ItemStyleString3(const ItemObj& element, std::string& call);

/// The distinct style calls of one script, in the order of their first use. A call's number is its position,
/// from 0, and the runtime counts the calls the same way.
class StyleCollection {
 public:
  /// The number of a call as text, which is added if it is new; the empty text for the empty call.
  SharedText GetStyleID(std::string_view styleString);

  /// Stores the numbers in the elements of a container and of all below it: first the container and all its
  /// items, then its submenus, one after the other. Without submenus it stays at that container.
  void CollectStyles(Document& document, const Node& container, bool includeSubmenus);

  const std::deque<std::string>& StyleStrings() const { return StyleStrings_; }

 private:
  std::deque<std::string> StyleStrings_;
  std::unordered_map<std::string_view, SharedText> numbers_;  // by call, which lies in StyleStrings_
};

}  // namespace nimbrel
