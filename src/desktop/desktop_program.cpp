#include "desktop/desktop_program.h"

#include <QApplication>
#include <QFontDatabase>
#include <QRandomGenerator>
#include <QSessionManager>
#include <QStandardPaths>

#include "desktop/browser_view.h"
#include "desktop/display_text.h"
#include "desktop/run_action.h"
#include "platform/posix/host_paths.h"
#include "platform/posix/program_folder.h"
#include "text/ascii.h"
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

DesktopProgram::DesktopProgram(const std::string& programFolder)
    : pages_(previews_, fromHostPath(programFolder)),
      help_(QString::fromStdString(programFolder) + "/nbrhelp.hlp",
            userFolder(QStandardPaths::CacheLocation)),
      fileTypes_(userFolder(QStandardPaths::GenericDataLocation), QCoreApplication::applicationFilePath()),
      ports_{files_,
             previews_,
             asker_,
             settings_,
             opener_,
             help_,
             fileTypes_,
             clipboard_,
             installedFonts(),
             [] { return QRandomGenerator::global()->generateDouble(); },
             fromHostPath(absoluteHostPath(stateFolder())),
             [this](const Action& work) { view_.runAside(work); }},
      main_(ports_, fromHostPath(programFolder)),
      view_(main_) {
  BrowserView::setPages(&pages_);
  asker_.setMainWindow(&view_);
  asker_.setHelp(&help_);
  asker_.onModalChange([this](bool isOpen) { view_.setModalOpen(isOpen); });
  help_.onMissing([this](const QString& file) {
    asker_.MsgBox(
        {.title = std::string(productTitle), .text = fromDisplay("The help file cannot be opened: " + file)});
  });
  setErrorReporter([this](const QString& text) {
    asker_.MsgBox({.title = std::string(productTitle), .text = fromDisplay(text), .icon = BoxIcon::Critical});
  });
  QObject::connect(qApp, &QGuiApplication::commitDataRequest, &view_, [this](QSessionManager& session) {
    if (!session.allowsInteraction() && !session.allowsErrorInteraction()) return;
    if (!view_.mayClose()) session.cancel();
    session.release();
  });
  QObject::connect(&clipboard_, &SystemClipboard::changed, &view_, [this] {
    runAction([this] { main_.clipboardChanged(); }, {[this] { view_.refresh(); }});
  });
  termination_.onRequest([this] { view_.close(); });
}

/// What fails from now on goes to the log: message boxes need the windows, which are about to be destroyed.
DesktopProgram::~DesktopProgram() {
  setErrorReporter(nullptr);
  BrowserView::setPages(nullptr);
}

void DesktopProgram::start(const std::string& commandLine) {
  runAction([this] { fileTypes_.publish(); });
  // Pictures are relative to the menu file, and the list of recent files must know it by one name.
  view_.start(fromHostPath(absoluteHostPath(toHostPath(trimmed(commandLine)))));
}

}  // namespace nimbrel
