#pragma once

#include <QString>
#include <span>
#include <string>
#include <string_view>

/// Conversions between the library's text (Windows-1252 bytes, paths in document form) and what the screen shows.
namespace nimbrel {

QString toDisplay(std::string_view text);
std::string fromDisplay(const QString& text);

/// Paths are displayed in the form of this system.
QString toDisplayPath(std::string_view documentPath);
std::string fromDisplayPath(const QString& path);
/// A text that contains `paths`, which are displayed as paths.
QString toDisplayWithPaths(std::string_view text, std::span<const std::string> paths);

}  // namespace nimbrel
