#include "desktop/application.h"

#include <QDebug>
#include <exception>

#include "desktop/shown_text.h"
#include "platform/file_error.h"

namespace nimbrel {

Application::Application(int& argc, char** argv) : QApplication(argc, argv) {
  setApplicationName("Nimbrel");
  // No display name: the system would put it behind each of our titles.
  setDesktopFileName("example.nimbrel.Nimbrel");
  setQuitOnLastWindowClosed(false);
}

bool Application::notify(QObject* receiver, QEvent* event) {
  try {
    return QApplication::notify(receiver, event);
  } catch (const FileError& error) {
    tell(shownPath(error.finding().path) + ": " + shown(error.finding().text()));
  } catch (const std::exception& error) {
    tell(QString::fromUtf8(error.what()));
  }
  return true;
}

void Application::tell(const QString& text) const {
  if (report) {
    report(text);
  } else {
    qCritical().noquote() << text;
  }
}

}  // namespace nimbrel
