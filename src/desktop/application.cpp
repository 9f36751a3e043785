#include "desktop/application.h"

#include <QDebug>
#include <exception>

#include "desktop/display_text.h"
#include "desktop/icons.h"
#include "platform/file_error.h"

namespace nimbrel {

Application::Application(int& argc, char** argv) : QApplication(argc, argv) {
  setApplicationName("Nimbrel");
  // No display name: the system would put it behind each of our titles.
  setDesktopFileName("example.nimbrel.Nimbrel");
  setQuitOnLastWindowClosed(false);
  setWindowIcon(applicationIcon());
}

bool Application::notify(QObject* receiver, QEvent* event) {
  try {
    return QApplication::notify(receiver, event);
  } catch (const std::exception& error) {
    tell(error);
  }
  return true;
}

QString Application::textOf(const std::exception& error) {
  const auto* file = dynamic_cast<const FileError*>(&error);
  return file == nullptr ? QString::fromUtf8(error.what())
                         : toDisplayPath(file->finding().path) + ": " + toDisplay(file->finding().text());
}

void Application::tell(const std::exception& error) const {
  const auto text = textOf(error);
  if (report) {
    report(text);
  } else {
    qCritical().noquote() << text;
  }
}

}  // namespace nimbrel
