#include <QPixmap>
#include <QSplashScreen>
#include <QTimer>
#include <unistd.h>

#include "desktop/application.h"
#include "desktop/desktop_program.h"
#include "desktop/shown_text.h"
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
  return nimbrel::heldPath(arguments.mid(1).join(' '));
}

}  // namespace

int main(int argc, char** argv) {
  allowAdministrator();
  QCoreApplication::setAttribute(Qt::AA_ShareOpenGLContexts);
  nimbrel::Application application(argc, argv);

  QSplashScreen splash(
      QIcon(":/icons/splash.svg").pixmap(nimbrel::frmSplash::width, nimbrel::frmSplash::height));
  splash.setObjectName("frmSplash");
  splash.show();
  QCoreApplication::processEvents();

  const auto folder = nimbrel::absoluteHostPath(nimbrel::programFolder(std::nullopt));
  nimbrel::DesktopProgram program(application, folder);
  splash.close();
  // Within the event loop, where a fault is told and the program goes on.
  QTimer::singleShot(0, &application, [&] { program.start(commandLine(QCoreApplication::arguments())); });
  return QCoreApplication::exec();
}
