#pragma once

#include <string>

#include "compiler/compiled_menu.h"

/// Looks, as the distinct `nbrCreateCSS` calls of a script.
namespace nimbrel {

/// Each function appends a call, without a line end. `TitleStyleString` appends nothing for an element that has no
/// title, that is, one that shows neither its name nor an image.
void TitleStyleString(const TitledContainer& element, std::string& call);
void ContainerStyleString(const TitledContainer& element, const ElementNumbers& numbers, std::string& call);
void ItemStyleString(const ItemObj& item, const ElementNumbers& numbers, LookPart state, std::string& call);
/// The call for a part of any element, which must have that part.
void StyleString(const CompiledElement& owner, LookPart part, std::string& call);

/// Numbers the distinct looks of a group, whose pictures must be numbered: first those of the container and its items,
/// then those of each submenu below it. Without submenus only those of the container and its items.
void CollectStyles(CompiledGroup& group);

}  // namespace nimbrel
