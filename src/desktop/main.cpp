#include <QLabel>
#include <QLayout>
#include <QMessageBox>
#include <QPixmap>
#include <QTimer>
#include <optional>
#include <unistd.h>

#include "desktop/application.h"
#include "desktop/desktop_program.h"
#include "desktop/display_text.h"
#include "desktop/form_window.h"
#include "platform/posix/host_paths.h"
#include "platform/posix/program_folder.h"
#include "shell/small_forms.h"

namespace {

/// The browser refuses its sandbox to the administrator.
void allowAdministrator() {
  if (geteuid() == 0) qputenv("QTWEBENGINE_DISABLE_SANDBOX", "1");
}

/// The whole rest of the command line is one name, whatever blanks are in it.
std::string commandLine(const QStringList& arguments) {
  return nimbrel::fromDisplayPath(arguments.mid(1).join(' '));
}

/// Stands while the rest loads.
void showAtOnce(nimbrel::frmSplash& splash, nimbrel::FormWindow& window) {
  const QSize size(nimbrel::frmSplash::width, nimbrel::frmSplash::height);
  window.setWindowFlags(Qt::SplashScreen | Qt::FramelessWindowHint);
  window.layout()->setContentsMargins(0, 0, 0, 0);
  window.findChild<QLabel*>("Picture1")->setPixmap(QIcon(":/icons/splash.svg").pixmap(size));
  window.setFixedSize(size);
  splash.isOpen = true;
  window.refresh();
  window.show();
  QCoreApplication::processEvents();
}

}  // namespace

int main(int argc, char** argv) {
  allowAdministrator();
  QCoreApplication::setAttribute(Qt::AA_ShareOpenGLContexts);
  nimbrel::Application application(argc, argv);

  nimbrel::frmSplash splash;
  nimbrel::FormWindow splashWindow(splash);
  showAtOnce(splash, splashWindow);

  std::optional<nimbrel::DesktopProgram> program;
  try {
    program.emplace(application, nimbrel::absoluteHostPath(nimbrel::programFolder(std::nullopt)));
  } catch (const std::exception& error) {
    // Without its folder it cannot go on.
    splashWindow.hide();
    QMessageBox::critical(nullptr, "Nimbrel", nimbrel::Application::textOf(error));
    return EXIT_FAILURE;
  }
  splashWindow.hide();
  // Within the event loop, where a fault is told and the program goes on.
  QTimer::singleShot(0, &application, [&] { program->start(commandLine(QCoreApplication::arguments())); });
  return QCoreApplication::exec();
}
