#pragma once

#include <string_view>

#include "model/document.h"

namespace nimbrel {

/// A well-formed document with this number of elements (1 to 32767). Equal seeds give equal documents. All
/// stored properties and settings have random values that survive writing and reading: names with outer
/// blanks, commas and quotes, texts of any bytes, bytes from 0 to 255, negative and fractional singles.
Document generatedDocument(unsigned seed, int elements);

/// A believable site menu of so many elements (1 to 32767): submenus under every other item, three levels and
/// more from 40 elements on, addresses, tooltips, and looks and pictures that many items share.
Document largeDocument(int elements);

/// Lies in the folder of every picture that `largeDocument` names.
inline constexpr std::string_view largeDocumentPictures = "C:\\site\\pictures";

}  // namespace nimbrel
