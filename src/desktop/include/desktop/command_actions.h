#pragma once

#include <QAction>
#include <QMainWindow>
#include <map>
#include <string>
#include <string_view>

#include "shell/command_states.h"

class QMenu;

namespace nimbrel {

/// Builds the menus, the context menus and the toolbar of a window from the command table.
class CommandActions : public QObject {
  Q_OBJECT

 public:
  explicit CommandActions(QMainWindow& window);

  /// Updates captions, check marks and states.
  void refresh(const CommandStates& states);
  /// Draws the icons again, in the window's current colours.
  void drawIcons();
  /// These return nullptr for an unknown name.
  QMenu* contextMenu(std::string_view name) const;
  QAction* action(std::string_view name) const;
  QAction* button(std::string_view key) const;
  /// Those whose shortcuts work only in the tree, which must add them.
  const QList<QAction*>& treeActions() const { return treeActions_; }

 signals:
  void commandTriggered(const QString& name);
  /// The user has pressed F1 on a menu entry that has its own topic.
  void helpRequested(int topic);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void makeMenuBar();
  void makeContextMenus();
  void makeToolbar();
  QAction* makeAction(std::string_view name, std::string_view caption);

  QMainWindow& window_;
  std::map<std::string, QAction*, std::less<>> entries_;
  std::map<std::string, QAction*, std::less<>> buttons_;
  std::map<std::string, QMenu*, std::less<>> contextMenus_;
  QList<QAction*> treeActions_;
};

}  // namespace nimbrel
