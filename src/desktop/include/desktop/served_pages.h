#pragma once

#include <QUrl>
#include <QWebEngineUrlSchemeHandler>
#include <optional>
#include <string>

#include "platform/memory/overlay_file_system.h"

namespace nimbrel {

/// Serves the program's own pages to the embedded browsers, under a URL scheme of our own. Each document has an opaque
/// origin, so that its scripts can read no other address, not even those of this scheme.
///
/// There are three groups of pages: the preview, the gallery and the live examples. Each is a host of the scheme, with
/// its folder and the files beside the program that its pages show; nothing else is served. Previews come from memory.
class ServedPages : public QWebEngineUrlSchemeHandler {
 public:
  static constexpr const char* scheme = "nimbrel";
  /// Must be called before the application object is created.
  static void registerScheme();
  static bool isServed(const QUrl& url) { return url.scheme() == scheme; }

  /// `programFolder` is in document form. `previews` must outlive this object.
  ServedPages(const OverlayFileSystem& previews, std::string programFolder);

  /// The address of a page, or an empty one if it belongs to no group.
  QUrl urlOf(const std::string& path) const;
  /// Returns nullopt if the address is not served.
  std::optional<std::string> read(const QUrl& url) const;

  void requestStarted(QWebEngineUrlRequestJob* job) override;

 private:
  const OverlayFileSystem& previews_;
  std::string programFolder_;
};

}  // namespace nimbrel
