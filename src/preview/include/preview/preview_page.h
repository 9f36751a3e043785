#pragma once

#include <string>

#include "compiler/file_steps.h"
#include "model/document.h"

namespace nimbrel {

/// The path of the preview page, the same for every preview.
std::string previewPagePath(const std::string& programFolder);

/// Empties the preview's folders and creates page, script, libraries and pictures there. All submenus go into one
/// script, even if the document opens them in another frame. A step that fails becomes a finding, and the others
/// are still done.
void CreatePreviewFile(FileSystem& files, const std::string& programFolder, bool BlackPreview,
                       Document& document, StepReport& report);

}  // namespace nimbrel
