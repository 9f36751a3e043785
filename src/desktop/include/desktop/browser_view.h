#pragma once

#include <QStackedWidget>

class QWebEngineView;

namespace nimbrel {

/// A browser for the program's own pages. It loads files from the program's folder only: nothing from the network
/// and no other files. It follows no links. The browser process starts with the first page.
class BrowserView : public QStackedWidget {
  Q_OBJECT

 public:
  explicit BrowserView(QWidget* parent = nullptr);

  /// The folder that all browsers may read. Must be set before the first page.
  static void setReadableFolder(const QString& folder);

  void navigate(const QString& path);
  /// nullptr before the first page.
  QWebEngineView* view() const { return view_; }

 signals:
  void documentComplete();
  /// The browser process has crashed, and the user wants to load the page again.
  void reloadRequested();

 private:
  void createView();
  void showCrash();

  QWebEngineView* view_ = nullptr;
  QWidget* crashed_ = nullptr;
};

}  // namespace nimbrel
