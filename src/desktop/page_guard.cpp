#include "desktop/page_guard.h"

#include <QFile>
#include <QPointer>
#include <QWebEnginePage>
#include <QWebEngineScript>
#include <csignal>
#include <unistd.h>

namespace nimbrel {
namespace {

constexpr int memoryInterval = 200;     // milliseconds
constexpr int questionInterval = 1000;  // milliseconds
constexpr int patience = 3000;          // milliseconds without an answer
constexpr qint64 mostMemory = qint64{1} << 30;

/// In bytes; 0 if the process is gone.
qint64 residentMemory(qint64 process) {
  QFile file(QString("/proc/%1/statm").arg(process));
  if (!file.open(QIODevice::ReadOnly)) return 0;
  const auto pages = file.readAll().split(' ').value(1).toLongLong();
  return pages * ::sysconf(_SC_PAGESIZE);
}

}  // namespace

PageGuard::PageGuard(QWebEnginePage& page) : page_(page) {
  sinceAnswer_.start();
  sinceQuestion_.start();
  connect(&timer_, &QTimer::timeout, this, &PageGuard::watch);
  timer_.start(memoryInterval);
}

PageGuard::~PageGuard() {
  if (sinceAnswer_.elapsed() > qint64{2} * questionInterval) stop();
}

void PageGuard::stop() {
  if (const auto process = page_.renderProcessPid(); process > 0) {
    ::kill(static_cast<pid_t>(process), SIGKILL);
  }
}

void PageGuard::setAnswering(bool isAnswering) {
  if (isAnswering_ == isAnswering) return;
  isAnswering_ = isAnswering;
  emit answeringChanged(isAnswering);
}

/// In a world of our own, which the page's scripts cannot reach.
void PageGuard::ask() {
  sinceQuestion_.start();
  page_.runJavaScript("1", QWebEngineScript::ApplicationWorld,
                      [guard = QPointer(this)](const QVariant& answer) {
                        if (guard == nullptr || !answer.isValid()) return;
                        guard->sinceAnswer_.start();
                        guard->setAnswering(true);
                      });
}

void PageGuard::watch() {
  const auto process = page_.renderProcessPid();
  if (process <= 0) {  // not yet started, or ended
    sinceAnswer_.start();
    setAnswering(true);
    return;
  }
  if (!hasTakenTooMuch_ && residentMemory(process) > mostMemory) {
    hasTakenTooMuch_ = true;
    stop();
  }
  if (sinceQuestion_.elapsed() >= questionInterval) ask();
  if (sinceAnswer_.elapsed() > patience) setAnswering(false);
}

}  // namespace nimbrel
