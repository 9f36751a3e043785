#pragma once

#include <string>

#include "model/document.h"
#include "platform/file_system.h"

namespace nimbrel {

/// All in a document that would disappoint in the page or be lost in the file: broken nesting, values that
/// break the line or the script they stand in, pictures that are missing, of no known format, or of one name.
/// `path` is the document's, for what is said of the document itself.
Findings inspect(const Document& document, const FileSystem& files, const std::string& path);

}  // namespace nimbrel
