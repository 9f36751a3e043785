#include "desktop/served_pages.h"

#include <QBuffer>
#include <QMimeDatabase>
#include <QRegularExpression>
#include <QWebEngineUrlRequestJob>
#include <QWebEngineUrlScheme>
#include <algorithm>
#include <array>
#include <span>

#include "desktop/display_text.h"
#include "text/paths.h"

namespace nimbrel {
namespace {

struct PageGroup {
  const char* host;
  std::string_view folder;
  bool isInMemory;                          ///< of the folder, only what was written to the memory is served
  std::span<const std::string_view> files;  ///< other files of the program
};

using Names = std::string_view;
constexpr std::array previewFiles{Names("preview-back.jpg"), Names("preview-back-black.jpg")};
/// The gallery's pages share one copy of the libraries.
constexpr std::array galleryFiles{Names("stylepreview-back.jpg"),
                                  Names("nostyles.html"),
                                  Names("invalidstyle.html"),
                                  Names("gallery\\nbrmenupath.gif"),
                                  Names("gallery\\nbrData\\nbrlib0.js"),
                                  Names("gallery\\nbrData\\nbrlib1.js"),
                                  Names("gallery\\nbrData\\nbrlib2.js"),
                                  Names("gallery\\nbrData\\nbrlib3.js"),
                                  Names("gallery\\nbrData\\nbrlib4.js"),
                                  Names("gallery\\nbrData\\nbrlib5.js")};

constexpr std::array groups{
    PageGroup{"preview", "preview", true, previewFiles},
    PageGroup{"gallery", "gallery", true, galleryFiles},
    PageGroup{"examples", "Live Examples", false, {}},
};

bool isNamed(const PageGroup& group, std::string_view name) {
  return std::ranges::find(group.files, name) != group.files.end();
}

bool isInFolder(const PageGroup& group, std::string_view name) {
  return name.starts_with(group.folder) && name.substr(group.folder.size()).starts_with('\\');
}

/// Returns the path in document form, or an empty one if it could lead elsewhere.
std::string pathOf(const QUrl& url) {
  const auto path = url.path(QUrl::FullyDecoded).mid(1);
  if (path.contains('\\') || path.contains(QChar::Null)) return {};
  const auto parts = path.split('/');
  const auto leadsElsewhere = [](const QString& part) {
    return part.isEmpty() || part == "." || part == "..";
  };
  if (std::ranges::any_of(parts, leadsElsewhere)) return {};
  return fromDisplay(parts.join('\\'));
}

/// Scripts run and show what is served with the page. They connect to nothing and send nothing.
constexpr const char* policy =
    "<meta http-equiv=\"Content-Security-Policy\" content=\"default-src 'none'; "
    "script-src nimbrel: 'unsafe-inline' 'unsafe-eval'; style-src nimbrel: 'unsafe-inline'; "
    "img-src nimbrel: data:; font-src nimbrel: data:; media-src nimbrel: data:; frame-src nimbrel:; "
    "connect-src 'none'; object-src 'none'; worker-src 'none'; form-action 'none'; base-uri 'none'\">";

/// The policy comes first, but after a document type, which decides how the page is laid out.
QByteArray withPolicy(const QByteArray& page) {
  static const QRegularExpression documentType(R"(^\s*<!doctype[^>]*>)",
                                               QRegularExpression::CaseInsensitiveOption);
  const auto head = documentType.match(QString::fromLatin1(page));
  QByteArray guarded = page;
  return guarded.insert(head.hasMatch() ? head.capturedEnd() : 0, policy);
}

}  // namespace

void ServedPages::registerScheme() {
  QWebEngineUrlScheme own(scheme);
  own.setSyntax(QWebEngineUrlScheme::Syntax::Host);
  own.setFlags(QWebEngineUrlScheme::NoAccessAllowed);
  QWebEngineUrlScheme::registerScheme(own);
}

ServedPages::ServedPages(const OverlayFileSystem& previews, std::string programFolder)
    : previews_(previews), programFolder_(std::move(programFolder)) {}

QUrl ServedPages::urlOf(const std::string& path) const {
  if (!path.starts_with(programFolder_ + '\\')) return {};
  const auto name = path.substr(programFolder_.size() + 1);
  for (const auto& group : groups) {
    if (!isInFolder(group, name) && !isNamed(group, name)) continue;
    QUrl url;
    url.setScheme(scheme);
    url.setHost(group.host);
    url.setPath('/' + toDisplay(name).replace('\\', '/'));
    return url;
  }
  return {};
}

std::optional<std::string> ServedPages::read(const QUrl& url) const {
  const auto name = pathOf(url);
  const auto* group = std::ranges::find_if(groups, [&](const auto& one) { return url.host() == one.host; });
  if (name.empty() || group == groups.end()) return std::nullopt;
  const auto path = joinPath(programFolder_, name);
  const auto& files = previews_.base();
  const bool isInside = isInFolder(*group, name);
  if (isInside && group->isInMemory && previews_.written().isFile(path))
    return previews_.written().read(path);
  const bool isOfFolder =
      isInside && !group->isInMemory && files.isInside(path, joinPath(programFolder_, group->folder));
  if (!isOfFolder && !isNamed(*group, name)) return std::nullopt;
  if (!files.isFile(path)) return std::nullopt;
  return files.read(path);
}

void ServedPages::requestStarted(QWebEngineUrlRequestJob* job) {
  std::optional<std::string> bytes;
  try {
    bytes = read(job->requestUrl());
  } catch (const FileError&) {
    // The browser shows its own error page.
  }
  if (!bytes) {
    job->fail(QWebEngineUrlRequestJob::UrlNotFound);
    return;
  }
  const auto type = QMimeDatabase().mimeTypeForFile(job->requestUrl().path(), QMimeDatabase::MatchExtension);
  const auto content = QByteArray::fromStdString(*bytes);
  const bool isPage = type.name() == "text/html";
  auto* reply = new QBuffer(job);
  reply->setData(isPage ? withPolicy(content) : content);
  job->reply(type.name().toLatin1(), reply);
}

}  // namespace nimbrel
