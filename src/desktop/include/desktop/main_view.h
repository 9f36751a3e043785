#pragma once

#include <QLabel>
#include <QMainWindow>
#include <map>
#include <vector>

#include "desktop/command_actions.h"
#include "desktop/find_bar.h"
#include "desktop/form_window.h"
#include "desktop/sheet/sheet_view.h"
#include "desktop/tree_model.h"
#include "desktop/tree_view.h"
#include "shell/main_window.h"

namespace nimbrel {

class MainArea;

/// The main window on the screen. It passes the user's actions on to `frmMain` and shows the state that results.
class MainView : public QMainWindow {
  Q_OBJECT

 public:
  explicit MainView(frmMain& main);

  /// Shows the window where it was last, then the windows that open at the start.
  void start(const std::string& commandLine);
  /// Updates the window from `frmMain`.
  void refresh();
  /// While a modal window is open, the preview and the live examples are disabled.
  void setModalOpen(bool isOpen);
  /// Asks whether to save. Returns whether the window may close.
  bool mayClose();
  /// Does work of a command beside the window (`Ports::aside`). A wish to close it waits until the work is done.
  void runAside(const Action& work);

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
  void connectTree();
  void endName(TreeView::NameEnd end, bool isTyped);
  void deleteNode();
  void showContextMenu(const QPoint& place);
  void showSheets();
  void refreshSideWindow(FormWindow& window);
  void recordGeometry();
  void lookForOtherChanges();
  void find();
  void drawIcons();

  frmMain& main_;
  TreeModel model_;
  QWidget treePane_;  ///< the find bar above the tree; before them, since it would delete its children
  TreeView tree_;
  FindBar findBar_;
  SheetView menuSheet_, submenuSheet_, itemSheet_;
  MainArea* area_;
  CommandActions commands_;
  FormWindow preview_;
  FormWindow liveExamples_;
  std::map<const FormWindow*, std::size_t>
      lastShows_;  ///< `Form::shows` of the side windows at the last refresh
  std::vector<Connection> connections_;
  std::string unnamed_;            ///< key of the item of an outline that has got no name yet
  bool isAddedByOutline_ = false;  ///< it was added by Enter in the name before it
  bool isStarted_ = false;
  bool isStarting_ = false;
  bool isModalOpen_ = false;
  bool isWorkAside_ = false;
  bool isClosedAfterWork_ = false;
  bool isClosed_ = false;
};

}  // namespace nimbrel
