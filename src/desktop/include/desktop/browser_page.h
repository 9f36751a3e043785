#pragma once

#include <QWebEnginePage>

namespace nimbrel {

/// The profile of all pages.
QWebEngineProfile* browserProfile();

/// One visit of a page that a stranger may have written. Its scripts run, and can leave the page in no way: no other
/// page, no window, no download, no permission, no file. What it says in dialogs is passed on, without a wait for an
/// answer; questions are answered as cancelled.
class BrowserPage : public QWebEnginePage {
  Q_OBJECT

 public:
  BrowserPage(const QUrl& url, QObject* parent);

 signals:
  /// The page has opened a dialog with this text.
  void said(const QString& text);

 protected:
  bool acceptNavigationRequest(const QUrl& url, NavigationType type, bool isMainFrame) override;
  QWebEnginePage* createWindow(WebWindowType) override { return nullptr; }
  QStringList chooseFiles(FileSelectionMode, const QStringList&, const QStringList&) override { return {}; }
  void javaScriptAlert(const QUrl&, const QString& text) override { emit said(text); }
  bool javaScriptConfirm(const QUrl&, const QString& text) override;
  bool javaScriptPrompt(const QUrl&, const QString& text, const QString&, QString*) override;
  void javaScriptConsoleMessage(JavaScriptConsoleMessageLevel, const QString&, int, const QString&) override {
  }

 private:
  QUrl url_;
};

}  // namespace nimbrel
