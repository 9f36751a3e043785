#include "desktop/application.h"

#include <QApplication>

#include "desktop/icons.h"

namespace nimbrel {

void setUpApplication() {
  QApplication::setApplicationName("Nimbrel");
  // No display name: window managers would append it to our titles.
  QApplication::setDesktopFileName("example.nimbrel.Nimbrel");
  QApplication::setQuitOnLastWindowClosed(false);
  QApplication::setWindowIcon(applicationIcon());
}

}  // namespace nimbrel
