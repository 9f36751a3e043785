#include "desktop_run.h"

#include <QAbstractButton>
#include <QDir>
#include <QElapsedTimer>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QSettings>
#include <QTest>
#include <QWebEnginePage>
#include <QWebEngineView>
#include <filesystem>
#include <memory>
#include <optional>
#include <stdexcept>
#include <unistd.h>

#include "desktop/browser_view.h"
#include "desktop/display_text.h"

namespace nimbrel {
namespace {

namespace fs = std::filesystem;

/// What of the staged program an author's work needs.
void copyProgram(const QString& to) {
  const fs::path stage = NIMBREL_STAGE;
  fs::create_directories(to.toStdString());
  for (const auto& entry : fs::directory_iterator(stage)) {
    const auto name = entry.path().filename().string();
    if (name == "nbrc" || name == "Nimbrel") continue;
    fs::copy(entry.path(), fs::path(to.toStdString()) / name, fs::copy_options::recursive);
  }
}

}  // namespace

std::unique_ptr<QApplication> offscreenApplication(int& argc, char** argv) {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  if (geteuid() == 0) qputenv("QTWEBENGINE_DISABLE_SANDBOX", "1");
  qputenv("QTWEBENGINE_CHROMIUM_FLAGS", "--disable-gpu");
  QCoreApplication::setAttribute(Qt::AA_ShareOpenGLContexts);
  QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
  auto application = std::make_unique<QApplication>(argc, argv);
  setUpApplication();
  return application;
}

bool waitFor(const std::function<bool()>& holds, int milliseconds) {
  QElapsedTimer time;
  time.start();
  while (!holds()) {
    if (time.elapsed() > milliseconds) return false;
    QTest::qWait(5);
  }
  return true;
}

DesktopRun::DesktopRun() {
  copyProgram(programFolder());
  QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, path("config"));
  qputenv("XDG_DATA_HOME", path("data").toLocal8Bit());
  qputenv("XDG_CACHE_HOME", path("cache").toLocal8Bit());
  UserSettings settings;
  settings.SaveSetting("Settings", "Show Tips at Startup", "0");
  settings.SaveSetting("Settings", "ShowPreviewOnStartup", "False");
  program_ = std::make_unique<DesktopProgram>(programFolder().toStdString());
  constexpr int often = 10;
  look_.setInterval(often);
  QObject::connect(&look_, &QTimer::timeout, [this] { lookForWaiting(); });
  look_.start();
}

DesktopRun::~DesktopRun() { look_.stop(); }

void DesktopRun::start(const QString& commandLine) {
  program_->start(fromDisplayPath(commandLine));
  QTest::qWait(1);
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

/// Each window once: while a step of its runs, others may come up above it.
void DesktopRun::lookForWaiting() {
  auto* modal = QApplication::activeModalWidget();
  constexpr const char* isAnswered = "isAnswered";
  if (modal == nullptr || !modal->isVisible() || modal->property(isAnswered).toBool()) return;
  modal->setProperty(isAnswered, true);
  if (steps_.empty()) {
    ++unexpected_;
    qWarning().noquote() << "unexpected window:" << modal->windowTitle();
    if (auto* box = qobject_cast<QMessageBox*>(modal)) qWarning().noquote() << box->text();
    QTest::keyClick(modal, Qt::Key_Escape);
    return;
  }
  // Not within this tick, which would hold up the next: a step may bring up windows that wait in their turn.
  QTimer::singleShot(0, modal, [step = std::move(steps_.front()), modal] { step(*modal); });
  steps_.pop_front();
}

void DesktopRun::thenPress(const char* button) {
  then([name = QString(button)](QWidget& window) {
    if (auto* box = qobject_cast<QMessageBox*>(&window)) {
      for (auto* one : box->buttons()) {
        if (one->text().remove('&') == name) return QTest::mouseClick(one, Qt::LeftButton);
      }
    }
    auto* control = window.findChild<QAbstractButton*>(name);
    if (control == nullptr) {
      qWarning().noquote() << "no button" << name << "in" << window.windowTitle();
      return QTest::keyClick(&window, Qt::Key_Escape);
    }
    QTest::mouseClick(control, Qt::LeftButton);
  });
}

void DesktopRun::thenChooseFile(const QString& chosen) {
  then([chosen](QWidget& window) {
    auto* name = window.findChild<QLineEdit*>("fileNameEdit");
    if (name == nullptr) return QTest::keyClick(&window, Qt::Key_Escape);
    name->setText(chosen);
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
  // A page that goes away takes the answer with it, or gives it when nobody waits any longer.
  const auto answer = std::make_shared<std::optional<QVariant>>();
  browser->view()->page()->runJavaScript(script, [answer](const QVariant& value) { *answer = value; });
  constexpr int patience = 400;
  waitFor([&] { return answer->has_value(); }, patience);
  return answer->value_or(QVariant());
}

}  // namespace nimbrel
