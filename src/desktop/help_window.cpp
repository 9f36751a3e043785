#include "desktop/help_window.h"

#include <QAction>
#include <QDir>
#include <QFileInfo>
#include <QHelpContentWidget>
#include <QHelpEngine>
#include <QHelpIndexWidget>
#include <QHelpLink>
#include <QHelpSearchEngine>
#include <QHelpSearchQueryWidget>
#include <QHelpSearchResultWidget>
#include <QLineEdit>
#include <QSplitter>
#include <QTabWidget>
#include <QTextBrowser>
#include <QToolBar>
#include <QToolButton>
#include <QVBoxLayout>

namespace nimbrel {
namespace {

enum Tab { ContentsTab, IndexTab, SearchTab };
constexpr const char* home = "qthelp://nimbrel.help/help/index.html";

/// Shows pages, pictures and style sheets from the compiled help.
class HelpPage : public QTextBrowser {
 public:
  HelpPage(QHelpEngine& engine, QWidget* parent) : QTextBrowser(parent), engine_(engine) {
    setOpenExternalLinks(true);
    setAccessibleName("Help topic");
  }
  QVariant loadResource(int /*type*/, const QUrl& name) override {
    const auto url = name.isRelative() ? source().resolved(name) : name;
    if (url.scheme() == "qthelp") return engine_.fileData(url);
    return {};
  }

 private:
  QHelpEngine& engine_;
};

}  // namespace

HelpWindow::HelpWindow(QString file, QString cacheFolder)
    : file_(std::move(file)), cacheFolder_(std::move(cacheFolder)) {
  setWindowTitle("Nimbrel Help");
}

HelpWindow::~HelpWindow() = default;

/// Registers the help in a collection file of this user, again if the help file has changed.
bool HelpWindow::load() {
  if (!QFileInfo(file_).isFile()) return false;
  QDir().mkpath(cacheFolder_);
  auto engine = std::make_unique<QHelpEngine>(cacheFolder_ + "/help.qhc", this);
  engine->setReadOnly(false);
  engine->setUsesFilterEngine(true);
  if (!engine->setupData()) return false;
  const auto space = QHelpEngineCore::namespaceName(file_);
  if (space.isEmpty()) return false;
  const bool isKnown =
      engine->documentationFileName(space) == file_ &&
      engine->customValue("time").toLongLong() == QFileInfo(file_).lastModified().toMSecsSinceEpoch();
  if (!isKnown) {
    if (engine->registeredDocumentations().contains(space)) engine->unregisterDocumentation(space);
    if (!engine->registerDocumentation(file_)) return false;
    engine->setCustomValue("time", QFileInfo(file_).lastModified().toMSecsSinceEpoch());
    engine->setupData();
  }
  engine_ = engine.release();
  build();
  setAccessibleNames();
  return true;
}

void HelpWindow::build() {
  tabs_ = new QTabWidget(this);
  tabs_->addTab(engine_->contentWidget(), "Contents");
  auto* index = new QWidget(this);
  auto* indexLayout = new QVBoxLayout(index);
  auto* filter = new QLineEdit(index);
  filter->setPlaceholderText("Look for");
  indexLayout->addWidget(filter);
  indexLayout->addWidget(engine_->indexWidget());
  tabs_->addTab(index, "Index");
  connect(filter, &QLineEdit::textChanged, engine_->indexWidget(),
          [this](const QString& text) { engine_->indexWidget()->filterIndices(text); });
  connect(filter, &QLineEdit::returnPressed, engine_->indexWidget(), &QHelpIndexWidget::activateCurrentItem);
  buildSearch();

  page_ = new HelpPage(*engine_, this);
  connect(engine_->contentWidget(), &QHelpContentWidget::linkActivated, this, &HelpWindow::showPage);
  connect(engine_->indexWidget(), &QHelpIndexWidget::documentActivated, this,
          [this](const QHelpLink& link) { showPage(link.url); });

  auto* splitter = new QSplitter(this);
  splitter->addWidget(tabs_);
  splitter->addWidget(page_);
  splitter->setStretchFactor(1, 1);
  constexpr int width = 900;
  constexpr int height = 640;
  constexpr int side = 270;
  splitter->setSizes({side, width - side});
  setCentralWidget(splitter);
  resize(width, height);

  auto* bar = addToolBar("Navigation");
  bar->setMovable(false);
  const auto add = [&](const QString& text, const QKeySequence& keys, auto slot) {
    auto* action = bar->addAction(text);
    action->setShortcut(keys);
    connect(action, &QAction::triggered, page_, slot);
    return action;
  };
  auto* back = add("Back", QKeySequence::Back, &QTextBrowser::backward);
  auto* forward = add("Forward", QKeySequence::Forward, &QTextBrowser::forward);
  connect(bar->addAction("Contents"), &QAction::triggered, this, [this] { openContents(); });
  back->setEnabled(false);
  forward->setEnabled(false);
  connect(page_, &QTextBrowser::backwardAvailable, back, &QAction::setEnabled);
  connect(page_, &QTextBrowser::forwardAvailable, forward, &QAction::setEnabled);
}

void HelpWindow::buildSearch() {
  auto* search = engine_->searchEngine();
  auto* panel = new QWidget(this);
  auto* layout = new QVBoxLayout(panel);
  layout->addWidget(search->queryWidget());
  layout->addWidget(search->resultWidget());
  tabs_->addTab(panel, "Search");
  connect(search->queryWidget(), &QHelpSearchQueryWidget::search, search,
          [search] { search->search(search->queryWidget()->searchInput()); });
  connect(search->resultWidget(), &QHelpSearchResultWidget::requestShowLink, this, &HelpWindow::showPage);
  search->scheduleIndexDocumentation();
}

/// Most of Qt's help widgets come without accessible names.
void HelpWindow::setAccessibleNames() {
  tabs_->setAccessibleName("Ways into the help");
  engine_->contentWidget()->setAccessibleName("Contents");
  engine_->indexWidget()->setAccessibleName("Index");
  auto* search = engine_->searchEngine();
  search->resultWidget()->setAccessibleName("Pages found");
  for (auto* edit : findChildren<QLineEdit*>()) edit->setAccessibleName("Look for");
  for (auto* results : search->resultWidget()->findChildren<QTextBrowser*>()) {
    results->setAccessibleName("Pages found");
  }
  for (auto* button : search->resultWidget()->findChildren<QToolButton*>()) {
    if (button->text().isEmpty()) button->setAccessibleName(button->toolTip());
  }
}

void HelpWindow::showPage(const QUrl& page) { page_->setSource(page); }

void HelpWindow::showTab(int tab) {
  tabs_->setCurrentIndex(tab);
  setWindowState(windowState() & ~Qt::WindowMinimized);
  show();
  raise();
  activateWindow();
}

bool HelpWindow::ensureLoaded() {
  if (engine_ != nullptr || load()) return true;
  if (missing_) missing_(file_);
  return false;
}

bool HelpWindow::openTopic(int topic) {
  if (!ensureLoaded()) return false;
  const auto links = engine_->documentsForIdentifier(QString("topic-%1").arg(topic));
  if (links.isEmpty()) return openContents();
  showPage(links.constFirst().url);
  showTab(tabs_->currentIndex());
  return true;
}

bool HelpWindow::openContents() {
  if (!ensureLoaded()) return false;
  showPage(QUrl(home));
  showTab(ContentsTab);
  return true;
}

bool HelpWindow::openSearch() {
  if (!ensureLoaded()) return false;
  if (page_->source().isEmpty()) showPage(QUrl(home));
  showTab(SearchTab);
  engine_->searchEngine()->queryWidget()->setFocus();
  return true;
}

}  // namespace nimbrel
