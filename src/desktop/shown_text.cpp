#include "desktop/shown_text.h"

#include <QFile>

#include "platform/posix/host_paths.h"
#include "text/windows1252.h"

namespace nimbrel {

QString shown(std::string_view text) { return QString::fromStdString(toUtf8(text)); }

std::string held(const QString& text) { return fromUtf8(text.toStdString()); }

QString shownPath(std::string_view documentPath) {
  return QFile::decodeName(QByteArray::fromStdString(toHostPath(documentPath)));
}

QString shownWithPaths(std::string_view text, std::span<const std::string> paths) {
  auto whole = shown(text);
  for (const auto& path : paths) {
    if (!path.empty()) whole.replace(shown(path), shownPath(path));
  }
  return whole;
}

std::string heldPath(const QString& path) { return fromHostPath(QFile::encodeName(path).toStdString()); }

}  // namespace nimbrel
