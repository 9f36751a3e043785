#include "desktop/main_view.h"

#include <QApplication>
#include <QCloseEvent>
#include <QMenu>
#include <QScreen>
#include <QStatusBar>
#include <QTimer>
#include <array>
#include <utility>

#include "desktop/icons.h"
#include "desktop/main_area.h"
#include "desktop/shown_text.h"
#include "desktop/twips.h"

namespace nimbrel {
namespace {

/// Shows what stands after a deed, also where it threw.
class AfterDeed {
 public:
  explicit AfterDeed(MainView& view) : view_(view) {}
  AfterDeed(const AfterDeed&) = delete;
  AfterDeed& operator=(const AfterDeed&) = delete;
  ~AfterDeed() { view_.refresh(); }

 private:
  MainView& view_;
};

bool bringsAnotherDocument(const QString& command) {
  return command.startsWith("mnuFile") || command == "New" || command == "Open";
}

}  // namespace

MainView::MainView(frmMain& main)
    : main_(main),
      model_(main.document.tvTreeView),
      tree_(model_),
      menuSheet_(main.prctlMenu, icons()),
      submenuSheet_(main.prctlSubmenu, icons()),
      itemSheet_(main.prctlItem, icons()),
      area_(new MainArea(tree_, {&menuSheet_, &submenuSheet_, &itemSheet_}, this)),
      commands_(*this),
      preview_(main.browser, this),
      liveExamples_(main.liveExamples, this) {
  setObjectName("frmMain");
  setWindowIcon(applicationIcon());
  tree_.setObjectName("tvTreeView");
  statusBar()->setObjectName("sbStatusBar");
  setCentralWidget(area_);
  setMinimumWidth(toPixels(smallestFormWidth));
  for (auto* window : {&preview_, &liveExamples_}) window->setWindowFlag(Qt::Window);
  drawIcons();
  connectAll();
}

IconSource MainView::icons() const {
  return [this](const char* name) { return drawnIcon(name, palette().color(QPalette::WindowText)); };
}

SheetView& MainView::sheet(Kind kind) {
  return kind == Kind::Menu ? menuSheet_ : kind == Kind::Submenu ? submenuSheet_ : itemSheet_;
}

void MainView::connectAll() {
  connect(&tree_, &TreeView::nodeChosen, this, &MainView::showNode);
  connect(&tree_, &TreeView::deletePressed, this, [this] {
    constexpr int deleteKey = 46;
    const AfterDeed after(*this);
    main_.tvTreeView_KeyUp(deleteKey);
  });
  connect(&tree_, &TreeView::contextMenuWanted, this, &MainView::showContextMenu);
  connect(&commands_, &CommandActions::commandWanted, this, &MainView::run);
  connect(&commands_, &CommandActions::helpWanted, this,
          [this](int topic) { main_.ports.help.openTopic(topic); });
  for (auto* sheet : {&menuSheet_, &submenuSheet_, &itemSheet_}) {
    connect(sheet, &SheetView::acted, this, [this] {
      if (main_.CurrentNode != nullptr) model_.syncText(*main_.CurrentNode);
      refresh();
    });
    connect(sheet, &SheetView::helpWanted, this, [this](int topic) { main_.ports.help.openTopic(topic); });
  }
  for (auto* window : {&preview_, &liveExamples_})
    connect(window, &FormWindow::acted, this, &MainView::refresh);
}

void MainView::start(const std::string& commandLine) {
  const auto& place = main_.geometry;
  auto rectangle =
      QRect(toPixels(place.left), toPixels(place.top), toPixels(place.width), toPixels(place.height));
  // A screen that is gone, or smaller by now, must not hide the window.
  const auto* screen = QGuiApplication::screenAt(rectangle.center());
  if (screen == nullptr) screen = QGuiApplication::primaryScreen();
  const auto available = screen->availableGeometry();
  rectangle.setSize(rectangle.size().boundedTo(available.size()));
  if (!available.contains(rectangle.topLeft())) rectangle.moveTopLeft(available.topLeft());
  setGeometry(rectangle);
  show();
  isStarted_ = true;
  {
    const AfterDeed after(*this);
    main_.Activate(commandLine);
  }
  model_.reset();
  tree_.openUp();
  refresh();
  tree_.setFocus();
}

void MainView::run(const QString& command) {
  // The window may be closed by the command, which ends the program behind it.
  if (command == "mnuFileExit") {
    close();
    return;
  }
  const auto before =
      std::pair(main_.state.FilePath + '\\' + main_.state.FileTitle, main_.document.tvTreeView.root());
  const auto show = [&] {
    const auto now =
        std::pair(main_.state.FilePath + '\\' + main_.state.FileTitle, main_.document.tvTreeView.root());
    if (bringsAnotherDocument(command) && before != now) {
      model_.reset();
      tree_.openUp();
    } else {
      model_.sync();
    }
    refresh();
  };
  try {
    main_.run(held(command));
  } catch (...) {
    show();
    throw;
  }
  show();
}

void MainView::showNode(Node* node) {
  const AfterDeed after(*this);
  main_.tvTreeView_NodeClick(node);
}

void MainView::showContextMenu(const QPoint& place) {
  if (auto* menu = commands_.contextMenu(main_.contextMenu())) menu->popup(place);
}

void MainView::refresh() {
  if (windowTitle() != shown(main_.title)) setWindowTitle(shown(main_.title));
  setWindowModified(main_.state.IsDirty);
  commands_.refresh(main_.commands);
  tree_.showSelected(main_.selected);
  showSheets();
  for (auto* window : {&preview_, &liveExamples_}) showBeside(*window);
}

void MainView::showSheets() {
  const auto* visible = main_.visibleSheet();
  const std::array<std::pair<const PropertySheet*, SheetView*>, 3> sheets{
      {{&main_.prctlMenu, &menuSheet_},
       {&main_.prctlSubmenu, &submenuSheet_},
       {&main_.prctlItem, &itemSheet_}}};
  for (const auto& [sheet, view] : sheets) {
    if (sheet == visible) view->refresh();
    if (view->isHidden() == (sheet == visible)) view->setVisible(sheet == visible);
  }
}

void MainView::showBeside(FormWindow& window) {
  window.refresh();
  auto& shows = shows_[&window];
  if (!window.form().isOpen || shows == window.form().shows) return;
  shows = window.form().shows;
  window.setWindowState(window.windowState() & ~Qt::WindowMinimized);
  window.show();
  window.raise();
}

void MainView::setWaiting(bool isWaiting) {
  preview_.setEnabled(!isWaiting);
  liveExamples_.setEnabled(!isWaiting);
}

bool MainView::mayClose() {
  if (isClosed_) return true;
  noteGeometry();
  const AfterDeed after(*this);
  isClosed_ = main_.QueryClose();
  return isClosed_;
}

void MainView::closeEvent(QCloseEvent* event) {
  event->ignore();  // also if the save throws
  if (mayClose()) event->accept();
  if (isClosed_) qApp->quit();
}

void MainView::noteGeometry() {
  if (!isStarted_) return;
  main_.isMinimised = isMinimized();
  if (main_.isMinimised) return;
  const auto place = isMaximized() ? normalGeometry() : geometry();
  main_.geometry = {static_cast<float>(toTwips(place.x())), static_cast<float>(toTwips(place.y())),
                    static_cast<float>(toTwips(place.width())), static_cast<float>(toTwips(place.height()))};
}

void MainView::resizeEvent(QResizeEvent* event) {
  QMainWindow::resizeEvent(event);
  noteGeometry();
}

void MainView::moveEvent(QMoveEvent* event) {
  QMainWindow::moveEvent(event);
  noteGeometry();
}

void MainView::changeEvent(QEvent* event) {
  QMainWindow::changeEvent(event);
  if (event->type() == QEvent::PaletteChange || event->type() == QEvent::StyleChange) drawIcons();
}

void MainView::drawIcons() {
  const auto ink = palette().color(QPalette::Text);
  model_.setIcons(drawnIcon("node-menu", ink), drawnIcon("node-submenu", ink), drawnIcon("node-item", ink));
  tree_.viewport()->update();
  commands_.drawIcons();
}

/// F1 outside of the sheet.
void MainView::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_F1) {
    run("mnuHelpContents");
  } else {
    QMainWindow::keyPressEvent(event);
  }
}

}  // namespace nimbrel
