// Takes the pictures of the program's windows for docs/pictures, into the folder given as argument. Windows show paths, so it
// runs only in the home of an author who does not exist, which the script `take` beside it provides.
#include <QAbstractItemView>
#include <QDir>
#include <QHelpContentWidget>
#include <QPalette>
#include <QPushButton>
#include <QTest>
#include <QTreeView>
#include <filesystem>
#include <iostream>

#include "support/desktop_run.h"

namespace nimbrel {
namespace {

namespace fs = std::filesystem;

constexpr const char* home = "/home/author";
constexpr int unfolding = 600;  // milliseconds, more than a submenu takes

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
        if (name == "gallery") openFirstSubmenu(dynamic_cast<FormWindow&>(window));
        take(window, name);
        QTest::keyClick(&window, Qt::Key_Escape);
      });
    }
    run_.run(command);
  }

  void work() {
    fs::copy(run_.programFolder().toStdString() + "/Examples/thistlewick",
             run_.path("thistlewick").toStdString(), fs::copy_options::recursive);
    run_.start(run_.path("thistlewick/thistlewick.nbr"));
    auto& view = run_.view();
    constexpr QSize size(1100, 750);
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
    preview();
    help();
    darkTheme();
  }

 private:
  /// Opens the first submenu in the page of a window, as a mouse on its item does.
  void openFirstSubmenu(FormWindow& window) {
    const QString item =
        "document.querySelector('[data-nbr-menu]')?.shadowRoot.querySelector('[aria-haspopup]')";
    waitFor([&] { return run_.evaluate(window, "Boolean(" + item + ")").toBool(); });
    for (const QString event : {"pointerover", "pointermove"}) {
      run_.evaluate(window, item + ".dispatchEvent(new PointerEvent('" + event +
                                "', {bubbles: true, composed: true, pointerType: 'mouse'}))");
    }
    waitFor(
        [&] { return run_.evaluate(window, item + ".getAttribute('aria-expanded') === 'true'").toBool(); });
    QTest::qWait(unfolding);
  }

  /// The folders above the author's home are those of this machine.
  static void showFromHome(QWidget& window) {
    auto* folders = window.findChild<QTreeView*>();
    auto index = folders->currentIndex();
    while (index.isValid() && index.data().toString() != "home") index = index.parent();
    folders->scrollTo(index, QAbstractItemView::PositionAtTop);
  }

  void preview() {
    auto& window = run_.view().preview();
    run_.run("mnuToolsPreview");
    constexpr QSize size(1000, 640);
    window.resize(size);
    openFirstSubmenu(window);
    take(window, "preview");
  }

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
      QTest::qWait(500);  // the folders are read in the background
      showFromHome(window);
      take(window, "linking");
      QTest::keyClick(&window, Qt::Key_Escape);
    });
    run_.run("mnuToolsCompileMenu");
  }

  void help() {
    auto& window = run_.program().help();
    if (!window.openTopic(2280)) return;
    constexpr QSize size(1000, 700);
    window.resize(size);
    auto* contents = window.findChild<QHelpContentWidget*>();
    waitFor([&] { return contents->model()->rowCount() > 0; });
    contents->expandAll();
    take(window, "help");
    window.hide();
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
  DesktopRun run_{home};
};

}  // namespace
}  // namespace nimbrel

int main(int argc, char** argv) {
  const auto application = nimbrel::offscreenApplication(argc, argv);
  if (argc != 2) {
    std::cerr << "usage: " << argv[0] << " FOLDER\n";
    return 2;
  }
  if (QDir::homePath() != nimbrel::home || !QDir(nimbrel::home).isEmpty()) {
    std::cerr << "The pictures would show folders of this machine: run docs/pictures/take.\n";
    return 1;
  }
  QDir().mkpath(argv[1]);
  nimbrel::Photographer(argv[1]).work();
  return 0;
}
