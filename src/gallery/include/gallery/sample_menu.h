#pragma once

#include "gallery/style_file.h"
#include "model/document.h"

namespace nimbrel {

/// The menu on which the gallery shows a style: a main menu of three items, the second with a submenu of three.
Document BuildSampleMenu();

/// Dresses the sample. The picture that marks an item with a submenu shows on that one alone.
void ApplyStyleToSample(Document& sample, const MenuStyle& style);

}  // namespace nimbrel
