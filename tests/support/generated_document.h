#pragma once

#include <string_view>

#include "model/document.h"

namespace nimbrel {

/// A well-formed document of so many elements (1 to 32767) that is the same for the same seed. Every stored
/// property and setting has a value that its form in the menu file can carry: names with outer blanks, commas
/// and quotes, texts of any byte that survives, bytes from 0 to 255, negative and fractional singles.
Document generatedDocument(unsigned seed, int elements);

/// A believable site menu of so many elements (1 to 32767): submenus under every other item, three levels and
/// more from 40 elements on, addresses, tooltips, and looks and pictures that many items share.
Document largeDocument(int elements);

/// Lies in the folder of every picture that `largeDocument` names.
inline constexpr std::string_view largeDocumentPictures = "C:\\site\\pictures";

}  // namespace nimbrel
