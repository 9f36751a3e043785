#include "desktop/browser_view.h"

#include <QApplication>
#include <QDir>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>
#include <QWebEngineNewWindowRequest>
#include <QWebEnginePage>
#include <QWebEngineProfile>
#include <QWebEngineSettings>
#include <QWebEngineUrlRequestInterceptor>
#include <QWebEngineView>

namespace nimbrel {
namespace {

QString& readableFolder() {
  static QString folder;
  return folder;
}

bool isReadable(const QUrl& url) {
  if (url.scheme() == "data" || url == QUrl("about:blank")) return true;
  if (!url.isLocalFile()) return false;
  const auto path = QDir::cleanPath(url.toLocalFile());
  return path.startsWith(readableFolder() + '/');
}

class LocalFilesOnly : public QWebEngineUrlRequestInterceptor {
 public:
  using QWebEngineUrlRequestInterceptor::QWebEngineUrlRequestInterceptor;
  void interceptRequest(QWebEngineUrlRequestInfo& request) override {
    if (!isReadable(request.requestUrl())) request.block(true);
  }
};

/// One off-the-record profile for all browsers.
QWebEngineProfile* profile() {
  static auto* one = [] {
    auto* made = new QWebEngineProfile(qApp);
    made->setUrlRequestInterceptor(new LocalFilesOnly(made));
    made->setHttpCacheType(QWebEngineProfile::NoCache);
    return made;
  }();
  return one;
}

class Page : public QWebEnginePage {
 public:
  using QWebEnginePage::QWebEnginePage;

 protected:
  bool acceptNavigationRequest(const QUrl& url, NavigationType type, bool) override {
    return type != NavigationTypeLinkClicked && isReadable(url);
  }
  QWebEnginePage* createWindow(WebWindowType) override { return nullptr; }
};

}  // namespace

BrowserView::BrowserView(QWidget* parent) : QStackedWidget(parent) {}

void BrowserView::setReadableFolder(const QString& folder) { readableFolder() = QDir::cleanPath(folder); }

void BrowserView::createView() {
  view_ = new QWebEngineView(this);
  view_->setPage(new Page(profile(), view_));
  view_->setAccessibleName(accessibleName());
  view_->setContextMenuPolicy(Qt::NoContextMenu);
  auto* settings = view_->settings();
  settings->setAttribute(QWebEngineSettings::LocalContentCanAccessRemoteUrls, false);
  settings->setAttribute(QWebEngineSettings::JavascriptCanOpenWindows, false);
  settings->setAttribute(QWebEngineSettings::PluginsEnabled, false);
  connect(view_, &QWebEngineView::loadFinished, this, &BrowserView::documentComplete);
  connect(view_, &QWebEngineView::renderProcessTerminated, this,
          [this](QWebEnginePage::RenderProcessTerminationStatus status) {
            if (status != QWebEnginePage::NormalTerminationStatus) showCrash();
          });
  addWidget(view_);
}

void BrowserView::navigate(const QString& path) {
  if (view_ == nullptr) createView();
  setCurrentWidget(view_);
  view_->load(QUrl::fromLocalFile(path));
}

void BrowserView::showCrash() {
  if (crashed_ == nullptr) {
    crashed_ = new QWidget(this);
    auto* layout = new QVBoxLayout(crashed_);
    auto* text = new QLabel("The page could not be shown any longer: the browser has stopped.", crashed_);
    text->setWordWrap(true);
    text->setAlignment(Qt::AlignCenter);
    auto* reload = new QPushButton("Reload", crashed_);
    connect(reload, &QPushButton::clicked, this, &BrowserView::reloadRequested);
    layout->addStretch();
    layout->addWidget(text);
    layout->addWidget(reload, 0, Qt::AlignHCenter);
    layout->addStretch();
    addWidget(crashed_);
  }
  setCurrentWidget(crashed_);
}

}  // namespace nimbrel
