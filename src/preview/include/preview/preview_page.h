#pragma once

#include <string>

#include "compiler/file_steps.h"
#include "model/document.h"

namespace nimbrel {

/// The path of the page, which is the same for every preview.
std::string previewPagePath(const std::string& programFolder);

/// Empties the preview's folders and writes page, script, libraries and pictures there. The document has a
/// main menu; all its levels stand in one script, whatever the submenus' frame. A step that fails becomes a
/// finding and the others are made.
void CreatePreviewFile(FileSystem& files, const std::string& programFolder, bool BlackPreview,
                       Document& document, StepReport& report);

}  // namespace nimbrel
