#pragma once

#include <QLabel>
#include <QMainWindow>
#include <map>
#include <vector>

#include "desktop/command_actions.h"
#include "desktop/form_window.h"
#include "desktop/sheet/sheet_view.h"
#include "desktop/tree_model.h"
#include "desktop/tree_view.h"
#include "shell/main_window.h"

namespace nimbrel {

class MainArea;

/// The main window on the screen. All it does is to hand on what the author does and to show what stands after it.
class MainView : public QMainWindow {
  Q_OBJECT

 public:
  explicit MainView(frmMain& main);

  /// Shows the window where it stood last, and what comes with the program's start once it stands.
  void start(const std::string& commandLine);
  /// Takes over what the main window says now.
  void refresh();
  /// While another window waits for its answer, those that stand beside this one wait with it.
  void setWaiting(bool isWaiting);
  /// Whether the window may go; asks to save. It then is closed.
  bool mayClose();

  TreeView& tree() { return tree_; }
  SheetView& sheet(Kind kind);
  CommandActions& commands() { return commands_; }
  FormWindow& preview() { return preview_; }
  FormWindow& liveExamples() { return liveExamples_; }

  void run(const QString& command);

 protected:
  void closeEvent(QCloseEvent* event) override;
  void changeEvent(QEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void moveEvent(QMoveEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void connectAll();
  void runAction(const Action& action);
  void openHelp(int topic);
  IconSource icons() const;
  void showNode(Node* node);
  void deleteNode();
  void syncTree();
  QRect placeOnScreen() const;
  void showContextMenu(const QPoint& place);
  void showSheets();
  void showBeside(FormWindow& window);
  QPoint placeBeside(const QSize& size) const;
  void noteGeometry();
  void drawIcons();

  frmMain& main_;
  TreeModel model_;
  TreeView tree_;
  SheetView menuSheet_, submenuSheet_, itemSheet_;
  MainArea* area_;
  CommandActions commands_;
  FormWindow preview_;
  FormWindow liveExamples_;
  std::map<const FormWindow*, std::size_t>
      shows_;  ///< of the windows beside this one, as they were last seen
  bool isStarted_ = false;
  bool isStarting_ = false;
  bool isClosed_ = false;
};

}  // namespace nimbrel
