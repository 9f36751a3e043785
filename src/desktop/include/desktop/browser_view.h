#pragma once

#include <QStackedWidget>

class QWebEngineView;

namespace nimbrel {

/// A browser for pages of the program itself. It loads files of the program's folder and nothing else: no network,
/// no other file. Links are not followed. The browser's process starts with the first page.
class BrowserView : public QStackedWidget {
  Q_OBJECT

 public:
  explicit BrowserView(QWidget* parent = nullptr);

  /// The folder that all browsers may read, set once ahead of the first page.
  static void setReadableFolder(const QString& folder);

  void navigate(const QString& path);
  /// None ahead of the first page.
  QWebEngineView* view() const { return view_; }

 signals:
  void documentComplete();
  /// The browser's process has ended, and the author wants the page again.
  void reloadWanted();

 private:
  void createView();
  void showCrash();

  QWebEngineView* view_ = nullptr;
  QWidget* crashed_ = nullptr;
};

}  // namespace nimbrel
