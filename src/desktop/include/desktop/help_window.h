#pragma once

#include <QMainWindow>
#include <functional>
#include <memory>

#include "platform/ports.h"

class QHelpEngine;
class QTabWidget;
class QTextBrowser;

namespace nimbrel {

/// The help: contents, index and search beside the current topic.
class HelpWindow : public QMainWindow, public HelpSystem {
  Q_OBJECT

 public:
  /// `file` is the compiled help. Its collection and its search index are written to `cacheFolder`.
  HelpWindow(QString file, QString cacheFolder);
  ~HelpWindow() override;

  /// `callback` is called with the path of the help file whenever help is requested and the file cannot be opened.
  void onMissing(std::function<void(const QString&)> callback) { missing_ = std::move(callback); }

  bool openTopic(int topic) override;
  bool openContents() override;
  bool openSearch() override;

 private:
  bool load();
  bool ensureLoaded();
  void setAccessibleNames();
  void build();
  void buildSearch();
  void showPage(const QUrl& page);
  void showTab(int tab);

  QString file_;
  std::function<void(const QString&)> missing_;
  QString cacheFolder_;
  QHelpEngine* engine_ = nullptr;
  QTabWidget* tabs_ = nullptr;
  QTextBrowser* page_ = nullptr;
};

}  // namespace nimbrel
