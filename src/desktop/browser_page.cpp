#include "desktop/browser_page.h"

#include <QApplication>
#include <QWebEngineDownloadRequest>
#include <QWebEngineProfile>
#include <QWebEngineSettings>
#include <QWebEngineUrlRequestInterceptor>

#include "desktop/served_pages.h"

namespace nimbrel {
namespace {

/// Each group of pages reads its own host only.
bool mayLoad(const QUrl& url, const QUrl& page) {
  if (url.scheme() == "data" || url == QUrl("about:blank")) return true;
  return ServedPages::isServed(url) && url.host() == page.host();
}

class OwnPagesOnly : public QWebEngineUrlRequestInterceptor {
 public:
  using QWebEngineUrlRequestInterceptor::QWebEngineUrlRequestInterceptor;
  void interceptRequest(QWebEngineUrlRequestInfo& request) override {
    if (!mayLoad(request.requestUrl(), request.firstPartyUrl())) request.block(true);
  }
};

void switchOff(QWebEngineSettings& settings) {
  using Settings = QWebEngineSettings;
  for (const auto attribute :
       {Settings::AllowGeolocationOnInsecureOrigins, Settings::AllowRunningInsecureContent,
        Settings::AllowWindowActivationFromJavaScript, Settings::DnsPrefetchEnabled,
        Settings::FullScreenSupportEnabled, Settings::HyperlinkAuditingEnabled,
        Settings::JavascriptCanAccessClipboard, Settings::JavascriptCanOpenWindows,
        Settings::JavascriptCanPaste, Settings::LocalContentCanAccessFileUrls,
        Settings::LocalContentCanAccessRemoteUrls, Settings::LocalStorageEnabled,
        Settings::NavigateOnDropEnabled, Settings::PdfViewerEnabled, Settings::PluginsEnabled,
        Settings::ScreenCaptureEnabled}) {
    settings.setAttribute(attribute, false);
  }
  settings.setAttribute(Settings::WebRTCPublicInterfacesOnly, true);
  settings.setUnknownUrlSchemePolicy(Settings::DisallowUnknownUrlSchemes);
}

}  // namespace

/// One off-the-record profile for all browsers.
QWebEngineProfile* browserProfile() {
  static auto* one = [] {
    auto* made = new QWebEngineProfile(qApp);
    made->setUrlRequestInterceptor(new OwnPagesOnly(made));
    made->setHttpCacheType(QWebEngineProfile::NoCache);
    switchOff(*made->settings());
    QObject::connect(made, &QWebEngineProfile::downloadRequested, made,
                     [](QWebEngineDownloadRequest* download) { download->cancel(); });
    return made;
  }();
  return one;
}

BrowserPage::BrowserPage(const QUrl& url, QObject* parent)
    : QWebEnginePage(browserProfile(), parent), url_(url) {
  connect(this, &QWebEnginePage::featurePermissionRequested, this,
          [this](const QUrl& origin, QWebEnginePage::Feature feature) {
            setFeaturePermission(origin, feature, PermissionDeniedByUser);
          });
  load(url);
}

bool BrowserPage::javaScriptConfirm(const QUrl& /*origin*/, const QString& text) {
  emit said(text);
  return false;
}

bool BrowserPage::javaScriptPrompt(const QUrl& /*origin*/, const QString& text, const QString& /*standard*/,
                                   QString* /*answer*/) {
  emit said(text);
  return false;
}

/// Frames may show further pages, which live examples do.
bool BrowserPage::acceptNavigationRequest(const QUrl& url, NavigationType /*type*/, bool isMainFrame) {
  if (isMainFrame) return url.matches(url_, QUrl::RemoveFragment);
  return mayLoad(url, url_) && (!ServedPages::isServed(url) || url.path().endsWith(".html"));
}

}  // namespace nimbrel
