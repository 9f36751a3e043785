#pragma once

#include <QTimer>
#include <QWidget>
#include <memory>

class QLabel;
class QPushButton;
class QStackedWidget;
class QWebEngineView;

namespace nimbrel {

class PageBar;
class PageGuard;
class ServedPages;

/// A browser for the program's own pages, whose scripts can be those of a stranger: they reach nothing but their page.
/// What a page says in dialogs appears in a bar above it. A page that does not answer can be stopped, one that takes
/// more than 1 GiB of memory is ended, and both can be loaded again. Each visit has a fresh page and process; the
/// first one starts the browser.
class BrowserView : public QWidget {
  Q_OBJECT

 public:
  explicit BrowserView(QWidget* parent = nullptr);
  ~BrowserView() override;

  /// Where all browsers get their pages. Must be set before the first page, and live as long as the pages.
  static void setPages(ServedPages* pages);

  /// Shows a page of the program's folder. `path` is in document form.
  void navigate(const std::string& path);
  /// nullptr before the first page.
  QWebEngineView* view() const { return view_; }

 signals:
  void documentComplete();
  /// The page is gone, and the user wants to load it again.
  void reloadRequested();

 private:
  void createView();
  void createEnd();
  void hear(const QString& text);
  void showSaid();
  void showAnswering(bool isAnswering);
  void showEnd(const QString& reason);
  void leavePage();

  QStackedWidget* stack_;
  PageBar* said_;
  PageBar* hangs_;
  QWebEngineView* view_ = nullptr;
  QWidget* end_ = nullptr;
  QLabel* reason_ = nullptr;
  QPushButton* reload_ = nullptr;
  std::unique_ptr<PageGuard> guard_;
  bool isStopped_ = false;  ///< by the user
  QString lastSaid_;
  int timesSaid_ = 0;
  QTimer saidTimer_;
};

}  // namespace nimbrel
