#include "desktop/display_text.h"

#include <QFile>

#include "platform/posix/host_paths.h"
#include "text/windows1252.h"

namespace nimbrel {

QString toDisplay(std::string_view text) { return QString::fromStdString(toUtf8(text)); }

std::string fromDisplay(const QString& text) { return fromUtf8(text.toStdString()); }

QString toDisplayPath(std::string_view documentPath) {
  return QFile::decodeName(QByteArray::fromStdString(toHostPath(documentPath)));
}

QString toDisplayWithPaths(std::string_view text, std::span<const std::string> paths) {
  auto whole = toDisplay(text);
  for (const auto& path : paths) {
    if (!path.empty()) whole.replace(toDisplay(path), toDisplayPath(path));
  }
  return whole;
}

std::string fromDisplayPath(const QString& path) {
  return fromHostPath(QFile::encodeName(path).toStdString());
}

}  // namespace nimbrel
