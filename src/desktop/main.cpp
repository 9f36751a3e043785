#include <QApplication>
#include <QLabel>
#include <QLayout>
#include <QMessageBox>
#include <QPixmap>
#include <QTimer>
#include <optional>

#include "desktop/application.h"
#include "desktop/desktop_program.h"
#include "desktop/display_text.h"
#include "desktop/form_window.h"
#include "desktop/run_action.h"
#include "forms/small_forms.h"
#include "platform/posix/host_paths.h"
#include "platform/posix/program_folder.h"

namespace {

/// The whole command line is one file name, which may contain spaces.
std::string commandLine(const QStringList& arguments) {
  return nimbrel::fromDisplayPath(arguments.mid(1).join(' '));
}

/// Shows the splash screen while the rest of the program loads.
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
  nimbrel::prepareBrowser();
  QApplication application(argc, argv);
  nimbrel::setUpApplication();

  std::optional<nimbrel::DesktopProgram> program;
  try {
    nimbrel::frmSplash splash;
    nimbrel::FormWindow splashWindow(splash);
    showAtOnce(splash, splashWindow);
    program.emplace(nimbrel::absoluteHostPath(nimbrel::programFolder(std::nullopt)));
  } catch (const std::exception& error) {
    // Without its folder the program cannot go on.
    QMessageBox::critical(nullptr, "Nimbrel", nimbrel::errorText(error));
    return EXIT_FAILURE;
  }
  // From the event loop, since the windows of the start may wait for answers.
  QTimer::singleShot(0, &application, [&] { program->start(commandLine(QCoreApplication::arguments())); });
  return QCoreApplication::exec();
}
