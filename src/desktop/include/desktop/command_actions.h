#pragma once

#include <QAction>
#include <QMainWindow>
#include <map>
#include <string>
#include <string_view>

#include "shell/command_states.h"

class QMenu;

namespace nimbrel {

/// The command table as menus, context menus and toolbar of a window.
class CommandActions : public QObject {
  Q_OBJECT

 public:
  explicit CommandActions(QMainWindow& window);

  /// Shows captions, marks and states as they are now.
  void refresh(const CommandStates& states);
  /// Draws the icons anew, in the colours of the window.
  void drawIcons();
  QMenu* contextMenu(std::string_view name) const;
  /// None for a name that is no entry.
  QAction* action(std::string_view name) const;
  QAction* button(std::string_view key) const;

 signals:
  /// The author wants a command, by its entry's name or its button's key.
  void commandWanted(const QString& name);
  /// F1 over an entry that has a topic of its own.
  void helpWanted(int topic);

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
};

}  // namespace nimbrel
