#pragma once

#include "model/document.h"

namespace nimbrel {

/// A well-formed document with this number of elements (1 to 32767). Equal seeds give equal documents. All
/// stored properties and settings have random values that survive writing and reading: names with outer
/// blanks, commas and quotes, texts of any bytes, bytes from 0 to 255, negative and fractional singles.
Document generatedDocument(unsigned seed, int elements);

}  // namespace nimbrel
