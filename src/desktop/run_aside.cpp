#include "desktop/run_aside.h"

#include <QEventLoop>
#include <QGuiApplication>
#include <QThread>
#include <QTimer>
#include <exception>
#include <memory>

namespace nimbrel {
namespace {

constexpr int unnoticed = 200;  // milliseconds that need no busy pointer

}  // namespace

void runAside(const Action& work) {
  std::exception_ptr failure;
  const std::unique_ptr<QThread> thread(QThread::create([&] {
    try {
      work();
    } catch (...) {
      failure = std::current_exception();
    }
  }));
  bool isBusyShown = false;
  QEventLoop loop;
  QTimer::singleShot(unnoticed, &loop, [&] {
    QGuiApplication::setOverrideCursor(Qt::BusyCursor);
    isBusyShown = true;
  });
  QObject::connect(thread.get(), &QThread::finished, &loop, &QEventLoop::quit);
  thread->start();
  loop.exec(QEventLoop::ExcludeUserInputEvents);
  thread->wait();
  if (isBusyShown) QGuiApplication::restoreOverrideCursor();
  if (failure) std::rethrow_exception(failure);
}

}  // namespace nimbrel
