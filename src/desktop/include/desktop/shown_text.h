#pragma once

#include <QString>
#include <span>
#include <string>
#include <string_view>

/// Between what the library holds (one-byte text, paths in document form) and what stands on the screen.
namespace nimbrel {

QString shown(std::string_view text);
std::string held(const QString& text);

/// Paths in the system's own form.
QString shownPath(std::string_view documentPath);
/// A text with `paths` in it.
QString shownWithPaths(std::string_view text, std::span<const std::string> paths);
std::string heldPath(const QString& path);

}  // namespace nimbrel
