// Takes the pictures of docs/pictures from the running program, into the folder given as argument.
#include <QAbstractItemView>
#include <QDir>
#include <QPalette>
#include <QPushButton>
#include <QTest>
#include <iostream>

#include "desktop/desktop_run.h"

namespace nimbrel {
namespace {

class Photographer {
 public:
  explicit Photographer(QString folder) : folder_(std::move(folder)) {}

  void take(QWidget& window, const QString& name) {
    QTest::qWait(150);
    const auto path = folder_ + "/" + name + ".png";
    if (!window.grab().save(path)) std::cerr << "cannot write " << path.toStdString() << '\n';
  }

  /// Runs a command and takes pictures of the modal windows that it opens one after another.
  void takeModal(const char* command, const std::vector<QString>& names) {
    for (const auto& name : names) {
      run_.answer([this, name](QWidget& window) {
        if (name == "gallery") QTest::qWait(2500);
        take(window, name);
        QTest::keyClick(&window, Qt::Key_Escape);
      });
    }
    run_.run(command);
  }

  void work() {
    run_.start(run_.programFolder() + "/Examples/thistlewick/thistlewick.nbr");
    auto& view = run_.view();
    constexpr QSize size(1000, 640);
    view.resize(size);
    run_.select("M0");
    take(view, "sheet-menu");
    for (Node* node = run_.main().document.tvTreeView.root(); node != nullptr; node = following(node)) {
      if (kindOf(node->Key) != Kind::Submenu) continue;
      run_.select(node->Key.c_str());
      break;
    }
    take(view, "sheet-submenu");
    run_.select("I1");
    auto* grid = view.sheet(Kind::Item).findChild<QAbstractItemView*>();
    constexpr int colourRow = 18;
    const auto cell = grid->visualRect(grid->model()->index(colourRow, column::MouseOver));
    QTest::mouseClick(grid->viewport(), Qt::LeftButton, {}, cell.center());
    take(view, "sheet-item");
    takeModal("mnuHelpAbout", {"about"});
    takeModal("mnuHelpTipOfTheDay", {"tip"});
    takeModal("mnuToolsCompileProperties", {"compile-properties"});
    takeModal("mnuStylePickStyle", {"style-picked"});
    takeModal("mnuStyleSaveStyle", {"create-style"});
    takeModal("mnuStyleOpenStyleLibrary", {"gallery"});
    takeModal("mnuToolsInsertMenuIntoWebpage", {"link-file"});
    compile();
    view.commands().action("mnuToolsPreview")->trigger();
    waitFor([&] { return run_.evaluate(view.preview(), "document.readyState").toString() == "complete"; });
    QTest::qWait(1200);
    take(view.preview(), "preview");
    help();
    darkTheme();
  }

 private:
  void compile() {
    run_.answer([this](QWidget& window) {
      take(window, "compile-warning");
      QTest::mouseClick(window.findChild<QPushButton*>("cmdOk"), Qt::LeftButton);
    });
    run_.answerWithFile(run_.path("site/menu.js"));
    QDir().mkpath(run_.path("site"));
    run_.write("site/index.html", "<html><body></body></html>");
    run_.write("site/news.html", "<html><body></body></html>");
    run_.answer([this](QWidget& window) {
      take(window, "compile-report");
      QTest::mouseClick(window.findChild<QPushButton*>("cmdYes"), Qt::LeftButton);
    });
    run_.answer([this](QWidget& window) {
      QTest::qWait(500);
      take(window, "linking");
      QTest::keyClick(&window, Qt::Key_Escape);
    });
    run_.run("mnuToolsCompileMenu");
  }

  void help() {
    if (!run_.program().help().openTopic(2280)) return;
    QTest::qWait(800);
    take(run_.program().help(), "help");
    run_.program().help().hide();
  }

  void darkTheme() {
    QPalette dark(QColor(0x35, 0x37, 0x3B), QColor(0x2B, 0x2D, 0x30));
    dark.setColor(QPalette::Base, QColor(0x1E, 0x1F, 0x22));
    dark.setColor(QPalette::AlternateBase, QColor(0x26, 0x28, 0x2B));
    dark.setColor(QPalette::Text, Qt::white);
    dark.setColor(QPalette::WindowText, Qt::white);
    dark.setColor(QPalette::ButtonText, Qt::white);
    QApplication::setPalette(dark);
    QTest::qWait(100);
    take(run_.view(), "dark-theme");
  }

  QString folder_;
  DesktopRun run_;
};

}  // namespace
}  // namespace nimbrel

int main(int argc, char** argv) {
  const auto application = nimbrel::offscreenApplication(argc, argv);
  if (argc != 2) {
    std::cerr << "usage: " << argv[0] << " FOLDER\n";
    return 2;
  }
  QDir().mkpath(argv[1]);
  nimbrel::Photographer(argv[1]).work();
  return 0;
}
