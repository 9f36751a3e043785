#pragma once

#include <string>

#include "model/document.h"
#include "platform/file_system.h"

namespace nimbrel {

/// Finds what would fail in the page or get lost in the file: broken nesting, values that break their line or
/// the script, and pictures that are missing, of unknown format, or share a file name.
/// `path` is the document's path, for findings that concern the document itself.
Findings inspect(const Document& document, const FileSystem& files, const std::string& path);

}  // namespace nimbrel
