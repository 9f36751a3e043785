#include "desktop/desktop_program.h"

#include <QCoreApplication>
#include <QFontDatabase>
#include <QRandomGenerator>
#include <QSessionManager>
#include <QStandardPaths>

#include "desktop/application.h"
#include "desktop/browser_view.h"
#include "desktop/display_text.h"
#include "platform/posix/host_paths.h"
#include "text/product.h"

namespace nimbrel {
namespace {

QString userFolder(QStandardPaths::StandardLocation kind) { return QStandardPaths::writableLocation(kind); }

std::vector<std::string> installedFonts() {
  std::vector<std::string> fonts;
  for (const auto& family : QFontDatabase::families()) {
    if (!QFontDatabase::isPrivateFamily(family)) fonts.push_back(fromDisplay(family));
  }
  return fonts;
}

}  // namespace

DesktopProgram::DesktopProgram(Application& application, const std::string& programFolder)
    : help_(QString::fromStdString(programFolder) + "/nbrhelp.hlp",
            userFolder(QStandardPaths::CacheLocation)),
      fileTypes_(userFolder(QStandardPaths::GenericDataLocation), QCoreApplication::applicationFilePath()),
      ports_{
          files_, asker_,     settings_,        opener_,
          help_,  fileTypes_, installedFonts(), [] { return QRandomGenerator::global()->generateDouble(); }},
      main_(ports_, fromHostPath(programFolder)),
      view_(main_) {
  BrowserView::setReadableFolder(QString::fromStdString(programFolder));
  asker_.setMainWindow(&view_);
  asker_.setHelp(&help_);
  asker_.onWaiting([this](bool isWaiting) { view_.setWaiting(isWaiting); });
  help_.onMissing([this](const QString& file) {
    asker_.MsgBox(
        {.title = std::string(productTitle), .text = fromDisplay("The help file cannot be opened: " + file)});
  });
  application.report = [this](const QString& text) {
    asker_.MsgBox({.title = std::string(productTitle), .text = fromDisplay(text), .icon = BoxIcon::Critical});
  };
  QObject::connect(&application, &QGuiApplication::commitDataRequest, &view_,
                   [this](QSessionManager& session) {
                     if (!session.allowsInteraction() && !session.allowsErrorInteraction()) return;
                     if (!mayEnd()) session.cancel();
                     session.release();
                   });
  termination_.onAsked([this] { view_.close(); });
}

/// A save that fails keeps the session, and is told here: nothing may be thrown through the session's library.
bool DesktopProgram::mayEnd() {
  try {
    return view_.mayClose();
  } catch (const std::exception& error) {
    static_cast<Application*>(qApp)->tell(error);
    return false;
  }
}

void DesktopProgram::start(const std::string& commandLine) {
  fileTypes_.publish();
  view_.start(commandLine);
}

}  // namespace nimbrel
