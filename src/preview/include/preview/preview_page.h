#pragma once

#include <string>

#include "compiler/compiled_menu.h"
#include "compiler/file_steps.h"
#include "model/document.h"

namespace nimbrel {

/// The path of the preview page, the same for every preview.
std::string previewPagePath(const std::string& programFolder);

/// Creates page, script, libraries and pictures in the preview's folder, after those of the last preview are removed.
/// Other files stay. The folder is locked meanwhile. All submenus go into one script, even if the document opens them
/// in another frame. A step that fails becomes a finding, and the others are still done. Returns what was compiled.
CompiledMenu CreatePreviewFile(FileSystem& files, const std::string& programFolder, bool BlackPreview,
                               const Document& document, StepReport& report);

/// Removes page, script and marker image of the last preview. Its libraries and pictures stay until the next one.
void RemovePreviewPage(FileSystem& files, const std::string& programFolder, StepReport& report);

}  // namespace nimbrel
