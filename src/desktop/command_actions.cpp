#include "desktop/command_actions.h"

#include <QKeyEvent>
#include <QMenu>
#include <QMenuBar>
#include <QToolBar>
#include <algorithm>

#include "desktop/display_text.h"
#include "desktop/icons.h"
#include "shell/command_table.h"

namespace nimbrel {
namespace {

constexpr const char* topicProperty = "helpTopic";

/// The icon of a button is named after its key, in lower case and with hyphens.
QString iconName(std::string_view key) {
  if (key == "Insert Menu into Webpage") return "link-menu";
  return toDisplay(key).toLower().replace(' ', '-');
}

/// A caption "1. PATH", whose path may be shortened at the front. An ampersand in the path is no mnemonic.
QString recentFile(std::string_view caption) {
  constexpr std::string_view number = "1. ";
  constexpr std::string_view cut = "...";
  auto begin = std::min(number.size(), caption.size());
  if (caption.substr(begin).starts_with(cut)) begin += cut.size();
  return toDisplay(caption.substr(0, begin)) + toDisplayPath(caption.substr(begin)).replace('&', "&&");
}

}  // namespace

CommandActions::CommandActions(QMainWindow& window) : QObject(&window), window_(window) {
  makeMenuBar();
  makeContextMenus();
  makeToolbar();
  drawIcons();
}

QAction* CommandActions::makeAction(std::string_view name, std::string_view caption) {
  auto* action = new QAction(toDisplay(caption), this);
  action->setMenuRole(QAction::NoRole);
  entries_.emplace(name, action);
  connect(action, &QAction::triggered, this,
          [this, wanted = toDisplay(name)] { emit commandTriggered(wanted); });
  return action;
}

void CommandActions::makeMenuBar() {
  QMenu* menu = nullptr;     // the current one of the bar
  QMenu* deepest = nullptr;  // the menu or submenu that entries are added to
  for (const auto& entry : menuBar()) {
    if (entry.level == 0) {
      deepest = menu = window_.menuBar()->addMenu(toDisplay(entry.caption));
      menu->menuAction()->setProperty(topicProperty, entry.helpTopic);
      menu->installEventFilter(this);
      menu->setToolTipsVisible(false);
      continue;
    }
    if (entry.level == 1) deepest = menu;
    if (entry.caption == "-") {
      entries_.emplace(entry.name, deepest->addSeparator());
      continue;
    }
    const auto* next = &entry + 1;
    const bool hasEntries = next != menuBar().data() + menuBar().size() && next->level > entry.level;
    if (hasEntries) {
      deepest = menu->addMenu(toDisplay(entry.caption));
      entries_.emplace(entry.name, deepest->menuAction());
      continue;
    }
    auto* action = makeAction(entry.name, entry.caption);
    action->setShortcuts(QKeySequence::listFromString(toDisplay(entry.shortcut)));
    // Also works from the preview window, to refresh it.
    if (entry.name == "mnuToolsPreview") action->setShortcutContext(Qt::ApplicationShortcut);
    if ((entry.state & InTree) != 0) {
      action->setShortcutContext(Qt::WidgetShortcut);
      treeActions_ += action;
    }
    action->setCheckable((entry.state & Checked) != 0);
    action->setProperty(topicProperty, entry.helpTopic);
    deepest->addAction(action);
  }
}

void CommandActions::makeContextMenus() {
  for (const auto& described : contextMenus()) {
    auto* menu = new QMenu(&window_);
    contextMenus_.emplace(described.name, menu);
    for (const auto& entry : described.entries) {
      if (entry.caption == "-") {
        menu->addSeparator();
      } else {
        menu->addAction(makeAction(entry.name, entry.caption));
      }
    }
  }
}

void CommandActions::makeToolbar() {
  auto* bar = window_.addToolBar("Toolbar");
  bar->setObjectName("tbToolBar");
  bar->setMovable(false);
  bar->setContextMenuPolicy(Qt::PreventContextMenu);
  constexpr int iconSide = 20;
  bar->setIconSize({iconSide, iconSide});
  for (const auto& described : toolbar()) {
    if (described.key.empty()) {
      bar->addSeparator();
      continue;
    }
    auto* action = entries_.find(described.command)->second;
    action->setToolTip(toDisplay(described.toolTip));
    buttons_.emplace(described.key, action);
    bar->addAction(action);
  }
}

void CommandActions::drawIcons() {
  const auto ink = window_.palette().color(QPalette::WindowText);
  for (const auto& [key, action] : buttons_) {
    action->setIcon(drawnIcon(iconName(key), ink));
  }
}

void CommandActions::refresh(const CommandStates& states) {
  for (const auto& [name, action] : entries_) {
    const auto* state = states.find(name);
    if (state == nullptr) continue;
    const bool isFile = name.starts_with("mnuFileMRU");
    const auto caption = isFile ? recentFile(state->caption) : toDisplay(state->caption);
    if (!action->isSeparator() && action->text() != caption) action->setText(caption);
    action->setEnabled(state->enabled);
    action->setVisible(state->visible);
    if (action->isCheckable()) action->setChecked(state->checked);
  }
}

QMenu* CommandActions::contextMenu(std::string_view name) const {
  const auto found = contextMenus_.find(name);
  return found == contextMenus_.end() ? nullptr : found->second;
}

QAction* CommandActions::action(std::string_view name) const {
  const auto found = entries_.find(name);
  return found == entries_.end() ? nullptr : found->second;
}

QAction* CommandActions::button(std::string_view key) const {
  const auto found = buttons_.find(key);
  return found == buttons_.end() ? nullptr : found->second;
}

bool CommandActions::eventFilter(QObject* watched, QEvent* event) {
  const auto* menu = qobject_cast<QMenu*>(watched);
  if (menu == nullptr || event->type() != QEvent::KeyPress ||
      static_cast<QKeyEvent*>(event)->key() != Qt::Key_F1) {
    return QObject::eventFilter(watched, event);
  }
  const auto* entry = menu->activeAction() != nullptr ? menu->activeAction() : menu->menuAction();
  const int topic = entry->property(topicProperty).toInt();
  if (topic != 0) emit helpRequested(topic);
  return topic != 0;
}

}  // namespace nimbrel
