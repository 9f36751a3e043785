#pragma once

#include <QApplication>
#include <QDialog>
#include <QTemporaryDir>
#include <QTimer>
#include <deque>
#include <functional>
#include <memory>

#include "desktop/application.h"
#include "desktop/desktop_program.h"

namespace nimbrel {

/// The application of a run without a screen: call ahead of all else in `main`.
std::unique_ptr<QApplication> offscreenApplication(int& argc, char** argv);

/// Waits, with all events going on, until something holds; false after a while.
bool waitFor(const std::function<bool()>& holds, int milliseconds = 15'000);

/// The whole program on folders of its own, with windows that nobody sees.
class DesktopRun {
 public:
  /// Brings neither tip nor preview at its start.
  DesktopRun();
  ~DesktopRun();

  void start(const QString& commandLine = {});
  DesktopProgram& program() { return *program_; }
  MainView& view() { return program_->view(); }
  frmMain& main() { return program_->main(); }
  /// Of a file in the run's own folder.
  QString path(const QString& name) const { return folder_.filePath(name); }
  QString programFolder() const { return path("program"); }
  void write(const QString& name, const QByteArray& bytes) const;
  QByteArray read(const QString& name) const;

  /// What is done with the windows that will wait for an answer, one after the other. A window that nothing is told
  /// for is closed by Escape, and counted.
  void then(std::function<void(QWidget&)> step) { steps_.push_back(std::move(step)); }
  /// The same for the form or message box of that title or name.
  void thenPress(const char* button);
  void thenChooseFile(const QString& path);
  bool allDone() const { return steps_.empty() && unexpected_ == 0; }

  /// Runs a command as its menu entry does.
  void run(const char* command) { view().commands().action(command)->trigger(); }
  void select(const char* key);
  /// What a script gives in a page of the embedded browser.
  QVariant evaluate(FormWindow& window, const QString& script);

 private:
  void lookForWaiting();

  QTemporaryDir folder_;
  QTimer look_;
  std::deque<std::function<void(QWidget&)>> steps_;
  int unexpected_ = 0;
  std::unique_ptr<DesktopProgram> program_;
};

}  // namespace nimbrel
