// Measures the desktop program and prints each figure with its limit. It compares two starts, which run in processes
// of their own as `nimbrel_desktop_bench empty FOLDER` and `nimbrel_desktop_bench program FOLDER`.
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QScrollBar>
#include <QSettings>
#include <QTest>
#include <algorithm>
#include <iostream>
#include <numeric>

#include "desktop/display_text.h"
#include "large_document.h"
#include "persistence/menu_file.h"
#include "support/desktop_run.h"

namespace nimbrel {
namespace {

constexpr int rounds = 7;

double median(std::vector<double> values) {
  std::ranges::sort(values);
  return values[values.size() / 2];
}

double milliseconds(const std::function<void()>& work) {
  QElapsedTimer time;
  time.start();
  work();
  constexpr double nanoseconds = 1e6;
  return static_cast<double>(time.nsecsElapsed()) / nanoseconds;
}

double worst(const std::vector<double>& values) { return *std::ranges::max_element(values); }

void verdict(const std::string& what, double value, double limit) {
  std::cout << what << ": " << value << " ms (at most " << limit << ")" << (value > limit ? "  MISSED" : "")
            << '\n';
}

/// Returns once the event loop is idle after the window has appeared.
int showAndEnd(QWidget& window) {
  if (!QTest::qWaitForWindowExposed(&window)) return 1;
  QCoreApplication::processEvents();
  return 0;
}

int startProgram(const QString& folder) {
  QSettings::setPath(QSettings::IniFormat, QSettings::UserScope,
                     folder + "/../config");  // no tip, no preview
  DesktopProgram program(folder.toStdString());
  program.start("");
  return showAndEnd(program.view());
}

void compareStarts(const DesktopRun& run) {
  const auto start = [&](const char* which) {
    return milliseconds([&] {
      QProcess process;
      process.setStandardErrorFile(QProcess::nullDevice());
      process.start(QCoreApplication::applicationFilePath(), {which, run.programFolder()});
      if (!process.waitForFinished() || process.exitCode() != 0) std::cerr << "a start has failed\n";
    });
  };
  std::vector<double> beyond;
  for (int i = 0; i < rounds; ++i) {
    const auto empty = start("empty");
    beyond.push_back(start("program") - empty);
  }
  constexpr double limit = 600;
  verdict("start to a window, beyond an empty one", median(beyond), limit);
}

void workOnALargeMenu(DesktopRun& run) {
  constexpr int most = 32'767;
  SaveMenuFile(*std::make_unique<HostFileSystem>(), fromDisplayPath(run.path("large.nbr")),
               largeDocument(most));
  run.start(run.path("large.nbr"));
  auto& view = run.view();
  view.resize(1000, 700);
  QTest::qWait(100);
  auto& tree = view.tree();
  tree.expandAll();
  QTest::qWait(50);

  std::vector<double> selections;
  for (int i = 0; i < 200; ++i) {
    selections.push_back(milliseconds([&] {
      QTest::keyClick(&tree, Qt::Key_Down);
      QCoreApplication::processEvents();  // paints what the selection has changed
    }));
  }
  constexpr double frame = 16;
  verdict("select a node and fill its sheet, worst of 200", worst(selections), frame);
  std::cout << "  its median: " << median(selections) << " ms\n";

  std::vector<double> scrolls;
  auto* bar = tree.verticalScrollBar();
  for (int i = 0; i < 300; ++i) {
    scrolls.push_back(milliseconds([&] {
      bar->setValue(bar->value() + (i % 3 == 0 ? bar->pageStep() : 3));
      tree.viewport()->repaint();
    }));
  }
  verdict("scroll the tree by a step, worst of 300", worst(scrolls), frame);
}

void previewAnEdit() {
  DesktopRun run;
  run.start();
  run.run("mnuToolsPreview");
  const auto shows = [&](const QString& name) {
    const auto script =
        "(function(){var t='';document.querySelectorAll('*').forEach(function(e){if(e.shadowRoot)"
        "t+=e.shadowRoot.textContent});return t})()";
    return run.evaluate(run.view().preview(), script).toString().contains(name);
  };
  waitFor([&] { return shows("Item1"); });
  run.select("I1");
  std::vector<double> times;
  for (int i = 0; i < rounds; ++i) {
    QTest::qWait(1500);  // the files of the last one are gone
    const auto name = QString("Name%1").arg(i);
    run.main().prctlItem.EnterCell(0, column::Normal);
    run.main().prctlItem.type(fromDisplay(name));
    times.push_back(milliseconds([&] {
      QTest::keyClick(&run.view(), Qt::Key_F12);
      waitFor([&] { return shows(name); });
    }));
  }
  constexpr double limit = 300;
  verdict("from a typed name and F12 to the menu in the preview", median(times), limit);
}

}  // namespace
}  // namespace nimbrel

int main(int argc, char** argv) {
  std::cout << std::unitbuf;
  const auto application = nimbrel::offscreenApplication(argc, argv);
  if (argc == 3 && std::string_view(argv[1]) == "program") return nimbrel::startProgram(argv[2]);
  if (argc == 3) {
    QWidget empty;
    empty.show();
    return nimbrel::showAndEnd(empty);
  }
  {
    nimbrel::DesktopRun run;
    nimbrel::compareStarts(run);
    nimbrel::workOnALargeMenu(run);
  }
  nimbrel::previewAnEdit();
  return 0;
}
