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

/// The application, without a screen. Call first in `main`.
std::unique_ptr<QApplication> offscreenApplication(int& argc, char** argv);

/// Processes events until `holds` returns true. Returns false if that takes too long.
bool waitFor(const std::function<bool()>& holds, int milliseconds = 60'000);

/// The whole program, in folders of its own and without a screen.
class DesktopRun {
 public:
  /// Shows neither tip nor preview at the start.
  /// In a folder that exists and stays, or in a temporary one.
  explicit DesktopRun(const QString& folder = {});

  void start(const QString& commandLine = {});
  DesktopProgram& program() { return *program_; }
  MainView& view() { return program_->view(); }
  frmMain& main() { return program_->main(); }
  /// The path of a file in the run's folder.
  QString path(const QString& name) const { return folder_ + '/' + name; }
  QString programFolder() const { return path("program"); }
  void write(const QString& name, const QByteArray& bytes) const;
  QByteArray read(const QString& name) const;

  /// Queues what to do with the next modal window. Each window takes the next answer; windows without one are closed
  /// with Escape.
  void answer(std::function<void(QWidget&)> step) { answers_.push_back(std::move(step)); }
  /// Clicks a button: of a form by its name, of a message box by its text.
  void answerWith(const char* button);
  void answerWithFile(const QString& path);
  /// Whether all answers have been given.
  bool isAnswered() const { return answers_.empty(); }
  /// Answers that are left over, windows without an answer, and answers that did not fit their windows.
  QStringList problems() const;

  /// Runs a command as its menu entry does.
  void run(const char* command) { view().commands().action(command)->trigger(); }
  /// Clicks a node of the tree.
  void select(const char* key);
  /// Returns the result of a script in a page of the embedded browser.
  QVariant evaluate(FormWindow& window, const QString& script);

 private:
  void answerModalWindow();

  QTemporaryDir temporary_;
  QString folder_;
  QTimer poll_;
  std::deque<std::function<void(QWidget&)>> answers_;
  QStringList problems_;
  std::unique_ptr<DesktopProgram> program_;
};

}  // namespace nimbrel
