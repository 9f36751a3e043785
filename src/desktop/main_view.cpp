#include "desktop/main_view.h"

#include <QApplication>
#include <QCloseEvent>
#include <QMenu>
#include <QScopeGuard>
#include <QStatusBar>
#include <QTimer>
#include <QVBoxLayout>
#include <algorithm>
#include <array>
#include <utility>

#include "desktop/display_text.h"
#include "desktop/icons.h"
#include "desktop/main_area.h"
#include "desktop/run_action.h"
#include "desktop/run_aside.h"
#include "desktop/sheet/entry_edit.h"
#include "desktop/system_clipboard.h"
#include "desktop/window_place.h"
#include "shell/command_table.h"
#include "shell/keys.h"

namespace nimbrel {
MainView::MainView(frmMain& main)
    : main_(main),
      model_(main.editor),
      tree_(model_),
      menuSheet_(main.prctlMenu, icons()),
      submenuSheet_(main.prctlSubmenu, icons()),
      itemSheet_(main.prctlItem, icons()),
      area_(new MainArea(treePane_, std::array<QWidget*, 3>{&menuSheet_, &submenuSheet_, &itemSheet_}, this)),
      commands_(*this),
      preview_(main.browser),
      liveExamples_(main.liveExamples) {
  setObjectName("frmMain");
  tree_.setObjectName("tvTreeView");
  statusBar()->setObjectName("sbStatusBar");
  setCentralWidget(area_);
  setMinimumWidth(smallestWindowWidth());
  for (auto* window : {&preview_, &liveExamples_}) window->setWindowFlags(Qt::Window);
  drawIcons();
  connectAll();
  connections_.push_back(main.editor.documentReplaced.connect([this] {
    tree_.expandInitially();
    find();
  }));
  connections_.push_back(main.editor.edited.connect([this](const Edit&) { find(); }));
}

IconSource MainView::icons() const {
  return [this](const char* name) { return drawnIcon(name, palette().color(QPalette::WindowText)); };
}

SheetView& MainView::sheet(Kind kind) {
  return kind == Kind::Menu ? menuSheet_ : kind == Kind::Submenu ? submenuSheet_ : itemSheet_;
}

void MainView::connectTree() {
  connect(&tree_, &TreeView::nodesChosen, this,
          [this](const Nodes& nodes) { runAction([&] { main_.SelectNodes(nodes); }); });
  connect(&tree_, &TreeView::nameEnded, this, &MainView::endName);
  connect(&tree_, &TreeView::deletePressed, this, &MainView::deleteNode);
  connect(&tree_, &TreeView::contextMenuRequested, this, &MainView::showContextMenu);
  tree_.addActions(commands_.treeActions());
  model_.setDragRules(
      {[this](const Nodes& nodes, const Node& target, Drop drop, bool copies) {
         return main_.canDrop(nodes, target, drop, copies);
       },
       [this](QMimeData& formats, const Nodes& nodes) { putContent(formats, main_.contentOf(nodes)); }});
  connect(&model_, &TreeModel::renamed, this, [this](const Node* node, const QString& name) {
    runAction([&] { main_.rename(*node, fromDisplay(name)); });
  });
  connect(&model_, &TreeModel::dropped, this,
          [this](const QMimeData* dragged, const Node* target, Drop drop, bool copies) {
            runAction([&] {
              if (const auto* own = qobject_cast<const DraggedNodes*>(dragged)) {
                main_.drop(own->nodes, *target, drop, copies);
              } else {
                main_.drop(contentOf(*dragged), *target, drop);
              }
            });
          });
}

void MainView::connectAll() {
  connectTree();
  auto* pane = new QVBoxLayout(&treePane_);
  pane->setContentsMargins({});
  pane->setSpacing(0);
  pane->addWidget(&findBar_);
  pane->addWidget(&tree_);
  treePane_.setFocusProxy(&tree_);
  connect(&findBar_, &FindBar::textChanged, this, &MainView::find);
  connect(&findBar_, &FindBar::nextRequested, this,
          [this](bool forward) { run(forward ? "mnuEditFindNext" : "mnuEditFindPrevious"); });
  connect(&findBar_, &FindBar::replaceRequested, this, [this](const QString& by, TextKind kind) {
    std::size_t count = 0;
    runAction([&] { count = main_.replace(fromDisplay(findBar_.text()), fromDisplay(by), kind); });
    findBar_.setReplaced(count);
  });
  connect(&findBar_, &FindBar::closed, this, [this] {
    find();
    tree_.setFocus();
  });
  connect(&commands_, &CommandActions::commandTriggered, this, &MainView::run);
  connect(&commands_, &CommandActions::helpRequested, this, &MainView::openHelp);
  for (auto* sheet : {&menuSheet_, &submenuSheet_, &itemSheet_}) {
    connect(sheet, &SheetView::actionFinished, this, [this] { nimbrel::runAction([this] { refresh(); }); });
    connect(sheet, &SheetView::helpRequested, this, &MainView::openHelp);
    connect(sheet, &SheetView::menuRequested, this, [this](const QPoint& place) {
      QMenu::exec({commands_.action("mnuEditResetProperty"), commands_.action("mnuEditResetElement")}, place);
    });
  }
  for (auto* window : {&preview_, &liveExamples_}) {
    connect(window, &FormWindow::actionFinished, this, [this] { nimbrel::runAction([this] { refresh(); }); });
    connect(window, &FormWindow::helpRequested, this, [this] { run("mnuHelpContents"); });
  }
}

void MainView::runAction(const Action& action) {
  endComposing();
  nimbrel::runAction(action, {[this] { refresh(); }});
}

void MainView::openHelp(int topic) {
  nimbrel::runAction([&] { main_.ports.help.openTopic(topic); });
}

void MainView::start(const std::string& commandLine) {
  setGeometry(placeOnScreen(main_.geometry));
  show();
  isStarted_ = isStarting_ = true;
  const auto showDocument = [this] {
    isStarting_ = false;
    refresh();
    tree_.setFocus();
  };
  nimbrel::runAction([&] { main_.Activate(commandLine); }, {showDocument});
}

void MainView::run(const QString& command) {
  // Closing the window also ends the program.
  if (command == "mnuFileExit") {
    endComposing();
    close();
    return;
  }
  const auto name = fromDisplay(command);
  const auto* added = commandOfEntry(name);
  const bool namesItem = added != nullptr && added->name == "mnuItemAddItem" && tree_.hasFocus();
  runAction([&] { main_.run(name); });
  if (!namesItem) return;
  unnamed_ = main_.selected()->Key;
  isAddedByOutline_ = false;
  tree_.editName(true);
}

/// Goes on with an outline that is typed in the tree. An item that was added for the next name, and got none, goes again.
void MainView::endName(TreeView::NameEnd end, bool isTyped) {
  using enum TreeView::NameEnd;
  if (isTyped) unnamed_.clear();
  if (end == Cancel || (end == Next && !unnamed_.empty())) {
    while (isAddedByOutline_ && main_.document.tvTreeView.find(unnamed_) != nullptr) run("mnuEditUndo");
    return;
  }
  const char* command = end == Next ? "mnuItemAddItem" : end == Deeper ? "mnuItemIndent" : "mnuItemOutdent";
  if (main_.canRun(command)) runAction([&] { main_.run(command); });
  if (end == Next) {
    unnamed_ = main_.selected()->Key;
    isAddedByOutline_ = true;
  }
  tree_.editName(true);
}

void MainView::deleteNode() {
  runAction([this] { main_.tvTreeView_KeyUp(keys::Delete); });
}

void MainView::showContextMenu(const QPoint& place) {
  nimbrel::runAction([&] {
    if (auto* menu = commands_.contextMenu(main_.contextMenu())) menu->popup(place);
  });
}

void MainView::refresh() {
  isClosed_ = false;  // the user goes on working, whatever was answered before
  const std::array paths{main_.state.FilePath + '\\' + main_.state.FileTitle};
  // Escapes Qt's placeholder for the "modified" mark.
  const auto title = toDisplayWithPaths(main_.title, paths).replace("[*]", "[*][*]");
  if (windowTitle() != title) setWindowTitle(title);
  commands_.refresh(main_.commands);
  tree_.showSelected(main_.selection());
  showSheets();
  for (auto* window : {&preview_, &liveExamples_}) refreshSideWindow(*window);
  if (std::exchange(main_.isFinding, false)) findBar_.open();
  if (std::exchange(main_.isRenaming, false)) tree_.editName(false);
}

void MainView::showSheets() {
  const auto* wanted = main_.visibleSheet();
  for (auto* view : {&menuSheet_, &submenuSheet_, &itemSheet_}) {
    const bool isShown = &view->sheet() == wanted;
    if (!isShown && view->isHidden()) continue;
    view->refresh();
    if (isShown) area_->showSheet(*view);
  }
}

void MainView::refreshSideWindow(FormWindow& window) {
  window.refresh();
  auto& shows = lastShows_[&window];
  if (!window.form().isOpen || shows == window.form().shows) return;
  if (shows == 0) {
    const auto place = &window == &preview_ ? placeInTheMiddle : placeBeside;
    window.move(place(*this, window.size()));
  }
  shows = window.form().shows;
  window.setWindowState(window.windowState() & ~Qt::WindowMinimized);
  window.show();
  window.raise();
}

void MainView::setModalOpen(bool isOpen) {
  if (isOpen && isStarting_) {  // the tip of the day is about to cover this window
    nimbrel::runAction([this] { refresh(); });
  }
  isModalOpen_ = isOpen;
  preview_.setEnabled(!isOpen);
  liveExamples_.setEnabled(!isOpen);
}

bool MainView::mayClose() {
  if (isClosed_) return true;
  if (isWorkAside_) {
    isClosedAfterWork_ = true;
    return false;
  }
  if (auto* popup = QApplication::activePopupWidget()) popup->close();  // it would swallow the first click
  recordGeometry();
  bool mayClose = false;
  runAction([&] { mayClose = main_.QueryClose(); });
  isClosed_ = mayClose;
  return mayClose;
}

void MainView::runAside(const Action& work) {
  isWorkAside_ = true;
  const auto done = qScopeGuard([this] {
    isWorkAside_ = false;
    if (std::exchange(isClosedAfterWork_, false)) QTimer::singleShot(0, this, &QWidget::close);
  });
  nimbrel::runAside(work);
}

void MainView::closeEvent(QCloseEvent* event) {
  event->setAccepted(mayClose());
  if (isClosed_) qApp->quit();
}

void MainView::recordGeometry() {
  if (!isStarted_) return;
  main_.isMinimised = isMinimized();
  if (main_.isMinimised) return;
  main_.geometry = storedPlace(isMaximized() ? normalGeometry() : geometry());
}

void MainView::resizeEvent(QResizeEvent* event) {
  QMainWindow::resizeEvent(event);
  recordGeometry();
}

void MainView::moveEvent(QMoveEvent* event) {
  QMainWindow::moveEvent(event);
  recordGeometry();
}

void MainView::changeEvent(QEvent* event) {
  QMainWindow::changeEvent(event);
  if (event->type() == QEvent::PaletteChange || event->type() == QEvent::StyleChange) drawIcons();
  // From the event loop: a message box must not open inside the event that gives this window the focus.
  if (event->type() == QEvent::ActivationChange) QTimer::singleShot(0, this, &MainView::lookForOtherChanges);
}

void MainView::lookForOtherChanges() {
  if (!isStarted_ || isStarting_ || isClosed_ || isModalOpen_ || isWorkAside_ || !isActiveWindow()) return;
  nimbrel::runAction([this] { main_.offerReload(); }, {[this] { refresh(); }});
}

/// Shows in the tree what the find bar asks for. Everything while it is closed or empty.
void MainView::find() {
  nimbrel::runAction([this] {
    const auto wanted = fromDisplay(findBar_.text());
    if (findBar_.isHidden() || wanted.empty()) {
      tree_.filter(nullptr);
      findBar_.setCount(0);
      return;
    }
    const auto found = main_.find(wanted);
    tree_.filter(&found);
    findBar_.setCount(found.size());
  });
}

void MainView::drawIcons() {
  const auto ink = palette().color(QPalette::Text);
  const auto selectedInk = palette().color(QPalette::HighlightedText);
  const auto drawn = [&](const char* name) { return drawnIcon(name, ink, selectedInk); };
  model_.setIcons(drawn("node-menu"), drawn("node-submenu"), drawn("node-item"));
  tree_.viewport()->update();
  commands_.drawIcons();
}

/// Handles F1 outside of the sheet.
void MainView::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_F1) {
    run("mnuHelpContents");
  } else {
    QMainWindow::keyPressEvent(event);
  }
}

}  // namespace nimbrel
