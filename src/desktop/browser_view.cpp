#include "desktop/browser_view.h"

#include <QApplication>
#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QStackedWidget>
#include <QVBoxLayout>
#include <QWebEngineProfile>
#include <QWebEngineView>

#include "desktop/browser_page.h"
#include "desktop/page_bar.h"
#include "desktop/page_guard.h"
#include "desktop/served_pages.h"

namespace nimbrel {
namespace {

ServedPages*& pages() {
  static ServedPages* all = nullptr;
  return all;
}

/// A page may say as much as it likes, but the bar must not hide it.
QString shortened(const QString& text) {
  constexpr int most = 300;  // characters
  constexpr int looked = 10 * most;
  const auto line = text.left(looked).simplified();
  return line.size() <= most ? line : line.left(most) + QChar(0x2026);
}

}  // namespace

BrowserView::BrowserView(QWidget* parent)
    : QWidget(parent),
      stack_(new QStackedWidget(this)),
      said_(new PageBar("Close", this)),
      hangs_(new PageBar("Stop", this)) {
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins({});
  layout->setSpacing(0);
  layout->addWidget(said_);
  layout->addWidget(hangs_);
  layout->addWidget(stack_, 1);
  connect(said_, &PageBar::clicked, this, [this] {
    if (view_ != nullptr) view_->setFocus();
    timesSaid_ = 0;
    said_->hide();
  });
  connect(hangs_, &PageBar::clicked, this, [this] {
    isStopped_ = true;
    if (guard_ != nullptr) guard_->stop();
  });
  constexpr int rest = 100;  // milliseconds; a page may say thousands of things in a second
  saidTimer_.setInterval(rest);
  saidTimer_.setSingleShot(true);
  connect(&saidTimer_, &QTimer::timeout, this, &BrowserView::showSaid);
}

BrowserView::~BrowserView() = default;

void BrowserView::setPages(ServedPages* all) {
  auto* profile = browserProfile();
  profile->removeAllUrlSchemeHandlers();
  pages() = all;
  if (all != nullptr) profile->installUrlSchemeHandler(ServedPages::scheme, all);
}

void BrowserView::createView() {
  view_ = new QWebEngineView(this);
  view_->setAccessibleName(accessibleName());
  view_->setContextMenuPolicy(Qt::NoContextMenu);
  connect(view_, &QWebEngineView::loadFinished, this, &BrowserView::documentComplete);
  connect(view_, &QWebEngineView::renderProcessTerminated, this,
          [this](QWebEnginePage::RenderProcessTerminationStatus status) {
            if (status == QWebEnginePage::NormalTerminationStatus) return;
            const bool hasTakenTooMuch = guard_ != nullptr && guard_->hasTakenTooMuch();
            showEnd(hasTakenTooMuch ? "The page was ended: it took more than 1 GiB of memory."
                    : isStopped_    ? "The page was stopped."
                                    : "The page could not be shown any longer: the browser has stopped.");
          });
  stack_->addWidget(view_);
}

void BrowserView::leavePage() {
  guard_.reset();
  isStopped_ = false;
  timesSaid_ = 0;
  saidTimer_.stop();
  said_->hide();
  hangs_->hide();
}

void BrowserView::navigate(const std::string& path) {
  leavePage();
  if (view_ == nullptr) createView();
  const bool hadFocus = reload_ != nullptr && reload_->hasFocus();
  stack_->setCurrentWidget(view_);
  if (hadFocus) view_->setFocus();
  auto* page = new BrowserPage(pages() == nullptr ? QUrl() : pages()->urlOf(path), this);
  connect(page, &BrowserPage::said, this, &BrowserView::hear);
  guard_ = std::make_unique<PageGuard>(*page);
  connect(guard_.get(), &PageGuard::answeringChanged, this, &BrowserView::showAnswering);
  const QPointer last = qobject_cast<BrowserPage*>(view_->page());
  view_->setPage(page);
  if (last != nullptr) last->deleteLater();
}

void BrowserView::hear(const QString& text) {
  lastSaid_ = text;
  ++timesSaid_;
  if (!saidTimer_.isActive()) saidTimer_.start();
}

void BrowserView::showSaid() {
  const auto text = shortened(lastSaid_);
  said_->tell(timesSaid_ == 1 ? "The page says: " + text
                              : QString("The page says (%1 messages): %2").arg(timesSaid_).arg(text),
              *view_);
}

void BrowserView::showAnswering(bool isAnswering) {
  if (isAnswering) {
    hangs_->hide();
  } else {
    hangs_->tell("The page does not answer.", *view_);
  }
}

void BrowserView::createEnd() {
  end_ = new QWidget(this);
  auto* layout = new QVBoxLayout(end_);
  reason_ = new QLabel(end_);
  reason_->setWordWrap(true);
  reason_->setAlignment(Qt::AlignCenter);
  reload_ = new QPushButton("Reload", end_);
  connect(reload_, &QPushButton::clicked, this, &BrowserView::reloadRequested);
  layout->addStretch();
  layout->addWidget(reason_);
  layout->addWidget(reload_, 0, Qt::AlignHCenter);
  layout->addStretch();
  stack_->addWidget(end_);
}

/// Tells why the page is gone.
void BrowserView::showEnd(const QString& reason) {
  const bool hadFocus = isAncestorOf(QApplication::focusWidget());
  leavePage();
  if (end_ == nullptr) createEnd();
  reason_->setText(reason);
  reload_->setAccessibleDescription(reason);
  stack_->setCurrentWidget(end_);
  if (hadFocus) reload_->setFocus();
}

}  // namespace nimbrel
