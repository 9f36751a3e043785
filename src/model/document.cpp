#include "model/document.h"

#include <algorithm>

namespace nimbrel {

void Document::clear() {
  NextKeyNumber = 0;
  ElementColl.clear();
  tvTreeView.clear();
}

bool Document::operator==(const Document& other) const {
  return NextKeyNumber == other.NextKeyNumber && settings == other.settings &&
         tvTreeView == other.tvTreeView && ElementColl.size() == other.ElementColl.size() &&
         std::ranges::all_of(ElementColl, [&](const auto& entry) {
           const Element* theirs = other.ElementColl.find(entry.first);
           return theirs != nullptr && *theirs == entry.second;
         });
}

}  // namespace nimbrel
