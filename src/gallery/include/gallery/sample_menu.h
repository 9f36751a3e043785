#pragma once

#include "gallery/style_file.h"
#include "model/document.h"

namespace nimbrel {

/// The menu that shows a style in the gallery: three items, of which the second has a submenu of three items.
Document BuildSampleMenu();

/// Applies a style to the sample. Only the item with the submenu gets the images that mark it.
void ApplyStyleToSample(Document& sample, const MenuStyle& style);

}  // namespace nimbrel
