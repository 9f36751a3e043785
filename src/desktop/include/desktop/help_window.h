#pragma once

#include <QMainWindow>
#include <functional>
#include <memory>

#include "platform/ports.h"

class QHelpEngine;
class QTabWidget;
class QTextBrowser;

namespace nimbrel {

/// The help: contents, index and search beside the topic. Its window opens with the first topic.
class HelpWindow : public QMainWindow, public HelpSystem {
  Q_OBJECT

 public:
  /// `file` is the compiled help; `cacheFolder` takes what the search writes.
  HelpWindow(QString file, QString cacheFolder);
  ~HelpWindow() override;

  /// Called with the name of a help file that cannot be opened, each time that help is wanted.
  void onMissing(std::function<void(const QString&)> tell) { missing_ = std::move(tell); }

  bool openTopic(int topic) override;
  bool openContents() override;
  bool openSearch() override;

 private:
  bool load();
  bool isReady();
  void nameForReaders();
  void build();
  void buildSearch();
  void showPage(const QUrl& page);
  void come(int tab);

  QString file_;
  std::function<void(const QString&)> missing_;
  QString cacheFolder_;
  QHelpEngine* engine_ = nullptr;
  QTabWidget* tabs_ = nullptr;
  QTextBrowser* page_ = nullptr;
};

}  // namespace nimbrel
