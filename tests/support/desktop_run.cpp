#include "support/desktop_run.h"

#include <QAbstractButton>
#include <QClipboard>
#include <QDir>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QPointer>
#include <QSettings>
#include <QTemporaryFile>
#include <QTest>
#include <QWebEnginePage>
#include <QWebEngineView>
#include <filesystem>
#include <memory>
#include <optional>
#include <stdexcept>

#include "desktop/browser_view.h"
#include "desktop/display_text.h"

namespace nimbrel {
namespace {

namespace fs = std::filesystem;

/// A copy of the staged program for this process, without the executables. Runs link its files, so that no test can
/// change the stage.
fs::path programCopy() {
  static const QTemporaryDir folder;
  const fs::path copy = folder.path().toStdString();
  if (!fs::is_empty(copy)) return copy;
  for (const auto& entry : fs::directory_iterator(NIMBREL_STAGE)) {
    const bool isExecutable = entry.is_regular_file() && !entry.path().has_extension();
    if (!isExecutable) fs::copy(entry, copy / entry.path().filename(), fs::copy_options::recursive);
  }
  return copy;
}

}  // namespace

std::unique_ptr<QApplication> offscreenApplication(int& argc, char** argv) {
  static QTemporaryFile screen;
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM") && screen.open()) {
    screen.write(R"({"screens": [{"name": "screen", "x": 0, "y": 0, "width": 1920, "height": 1440}]})");
    screen.close();
    qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + screen.fileName().toUtf8());
  }
  qputenv("QTWEBENGINE_CHROMIUM_FLAGS", "--disable-gpu");
  prepareBrowser();
  QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
  auto application = std::make_unique<QApplication>(argc, argv);
  setUpApplication();
  return application;
}

bool waitFor(const std::function<bool()>& holds, int milliseconds) {
  return QTest::qWaitFor(holds, milliseconds);
}

DesktopRun::DesktopRun(const QString& folder) : folder_(folder.isEmpty() ? temporary_.path() : folder) {
  fs::copy(programCopy(), programFolder().toStdString(),
           fs::copy_options::recursive | fs::copy_options::create_hard_links);
  QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, path("config"));
  qputenv("XDG_DATA_HOME", path("data").toLocal8Bit());
  qputenv("XDG_STATE_HOME", path("state").toLocal8Bit());
  qputenv("XDG_CACHE_HOME", path("cache").toLocal8Bit());
  QGuiApplication::clipboard()->clear();
  UserSettings settings;
  settings.SaveSetting("Settings", "Show Tips at Startup", "0");
  settings.SaveSetting("Settings", "ShowPreviewOnStartup", "False");
  program_ = std::make_unique<DesktopProgram>(programFolder().toStdString());
  QObject::connect(&poll_, &QTimer::timeout, [this] { answerModalWindow(); });
  poll_.start(10);
}

void DesktopRun::start(const QString& commandLine) {
  program_->start(fromDisplayPath(commandLine));
  QCoreApplication::processEvents();
}

void DesktopRun::write(const QString& name, const QByteArray& bytes) const {
  QDir().mkpath(QFileInfo(path(name)).path());
  QFile file(path(name));
  if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
    throw std::runtime_error("no test file");
}

QByteArray DesktopRun::read(const QString& name) const {
  QFile file(path(name));
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// Each window only once: while its answer runs, others may open above it.
void DesktopRun::answerModalWindow() {
  auto* modal = QApplication::activeModalWidget();
  constexpr const char* isAnswered = "isAnswered";
  if (modal == nullptr || !modal->isVisible() || modal->property(isAnswered).toBool()) return;
  modal->setProperty(isAnswered, true);
  if (answers_.empty()) {
    auto* box = qobject_cast<QMessageBox*>(modal);
    problems_ += "no answer for " + modal->windowTitle() + (box == nullptr ? "" : ": " + box->text());
    QTest::keyClick(modal, Qt::Key_Escape);
    return;
  }
  // Not from this timer, which would not tick again until the answer returns: an answer may open further windows.
  QTimer::singleShot(0, modal, [this, answer = std::move(answers_.front()), window = QPointer(modal)] {
    answer(*window);
    if (window == nullptr || !window->isVisible()) return;
    problems_ += "left open: " + window->windowTitle();
    QTest::keyClick(window, Qt::Key_Escape);
  });
  answers_.pop_front();
}

QStringList DesktopRun::problems() const {
  auto all = problems_;
  if (!answers_.empty()) all += QString("%1 answers are left over").arg(answers_.size());
  return all;
}

void DesktopRun::answerWith(const char* button) {
  answer([name = QString(button)](QWidget& window) {
    for (auto* one : window.findChildren<QAbstractButton*>()) {
      if (one->objectName() == name || one->text().remove('&') == name) {
        QTest::mouseClick(one, Qt::LeftButton);
        return;
      }
    }
  });
}

void DesktopRun::answerWithFile(const QString& path) {
  answer([path](QWidget& window) {
    auto* name = window.findChild<QLineEdit*>("fileNameEdit");
    if (name == nullptr) return;
    name->setText(path);
    QMetaObject::invokeMethod(&window, "accept");
  });
}

void DesktopRun::select(const char* key) {
  auto& tree = view().tree();
  auto* model = static_cast<TreeModel*>(tree.model());
  const auto index = model->indexOf(main().document.tvTreeView.find(key));
  tree.scrollTo(index);
  QTest::mouseClick(tree.viewport(), Qt::LeftButton, {}, tree.visualRect(index).center());
}

QVariant DesktopRun::evaluate(FormWindow& window, const QString& script) {
  auto* browser = window.findChild<BrowserView*>();
  if (browser == nullptr || browser->view() == nullptr) return {};
  // The result may come after the wait, or never if the page is left.
  const auto answer = std::make_shared<std::optional<QVariant>>();
  browser->view()->page()->runJavaScript(script, [answer](const QVariant& value) { *answer = value; });
  constexpr int patience = 400;
  waitFor([&] { return answer->has_value(); }, patience);
  return answer->value_or(QVariant());
}

}  // namespace nimbrel
