#pragma once

#include <string_view>

#include "model/document.h"

namespace nimbrel {

/// A realistic site menu with this number of elements (1 to 32767): every other item has a submenu, which gives at
/// least three levels from 40 elements on, and many items share addresses, tooltips, styles and pictures.
Document largeDocument(int elements);

/// The folder of all pictures in `largeDocument`.
inline constexpr std::string_view largeDocumentPictures = "C:\\site\\pictures";

}  // namespace nimbrel
