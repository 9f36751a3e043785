#pragma once

#include <string_view>

#include "model/document.h"
#include "platform/file_system.h"

/// Whether the author's texts stay inside their quotes in the compiled menu.
namespace nimbrel {

/// Returns what is wrong with a text that is written between these quotes as it is ("holds a single quote"), or nullptr if
/// the script reads it as one text.
const char* flawOfLiteral(std::string_view text, char quote);

/// Finds all values that break the script or leave their quotes: of the elements, and of the header. `path` is that of the
/// document.
Findings flawedLiterals(const Document& document, const std::string& path);

}  // namespace nimbrel
