#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "gallery/style_picking.h"
#include "model/structure_editing.h"
#include "persistence/menu_file.h"
#include "platform/ports.h"
#include "platform/program_state.h"
#include "preview/browser_form.h"
#include "properties/live_examples.h"
#include "properties/property_sheet.h"
#include "shell/command_states.h"
#include "shell/recent_files.h"
#include "shell/window_layout.h"

namespace nimbrel {

/// Where the main window stands on the screen, twips.
struct Geometry {
  float left = 0;
  float top = 0;
  float width = 0;
  float height = 0;
};

/// Which windows come with the program's start, if the author has not turned them off.
enum class StartWindows : std::uint8_t { Wanted, None };

/// The main window: the open document, its commands, and the state that all forms share. It draws nothing; who
/// shows it reads the public fields after each call. A command that cannot be done throws, with the document as
/// far as it came and what was not saved still marked dirty; whoever called reports it and goes on.
class frmMain {
 public:
  /// Reads the stored geometry and registers the file types. All that is handed in outlives the window.
  frmMain(Ports& ports, std::string programFolder);

  /// The window has come to the front. The first time it starts on a new document, opens the file that the
  /// command line names, and shows what the author wants to see at the start.
  void Activate(std::string_view commandLine = {}, StartWindows windows = StartWindows::Wanted);

  /// The author wants the window closed: false where work is not saved and the author would not let it go.
  bool QueryClose();

  /// Runs the command of a menu entry, a context entry or, if it is one, a toolbar key; false for other names.
  bool run(std::string_view name);
  /// Whether the author can choose an entry of that name at present.
  bool canRun(std::string_view name) const;

  void tvTreeView_NodeClick(Node* node);
  /// `key` is a code of platform/keys.h. The tree has moved its selection already.
  void tvTreeView_KeyUp(int key);
  /// The context menu that a right click on a node opens; it belongs to the current node.
  std::string_view contextMenu() const;

  /// Whether the width was too small and was widened.
  bool Form_Resize(Geometry& window, bool isMinimised) const;

  void SelectNode(Node* node);
  void SetIsDirty();
  void LeaveCells();
  void CreatePreviewFile();
  void UpdateMRUList(const std::string& path, const std::string& name);

  PropertySheet& sheetOf(Kind kind);
  /// The sheet that is shown, none with an empty tree.
  PropertySheet* visibleSheet();

  Ports& ports;
  ProgramState state;
  Document document;
  CommandStates commands;
  std::string title;
  Geometry geometry;
  bool isMinimised = false;

  Node* selected = nullptr;     ///< the tree's selection
  Node* CurrentNode = nullptr;  ///< whose element the sheet shows

  frmLiveExamples liveExamples;
  frmBrowser browser;
  PropertySheet prctlMenu;
  PropertySheet prctlSubmenu;
  PropertySheet prctlItem;
  StylePicking picking;
  Clipboard clipboard;
  SubmenuCarryOver carryOver;  ///< what older menu files hand from the main menu to the submenus behind it

 private:
  // main_window.cpp
  void bindSheets();
  void EnableCommands(Kind kind);
  void enableMoves();
  void enableApply(Kind kind);
  void RefreshCurrentSheet();
  void refill(Node& node);
  void sheetChanged(Kind sheet, int ordinal);
  void select(Node* node);
  void setTitle(std::string_view document);

  // document_commands.cpp
  void mnuFileNew();
  void mnuFileOpen();
  void mnuFileSave();
  void mnuFileSaveAs();
  void mnuFileMRU(std::size_t slot);
  bool PromptToSave();
  void load();
  void save(const std::string& path);
  bool mayReplace(const std::string& path) const;
  void outdatePreview();
  void splitPath(const std::string& path);

  // structure_commands.cpp
  void mnuEditCut();
  void mnuEditCopy();
  void mnuEditPaste();
  void mnuItemAddItem();
  void mnuItemDeleteItem();
  void mnuItemMove(bool up);
  void mnuSubmenuAddSubmenu();
  void mnuSubmenuDeleteSubmenu();
  bool askToDelete(const Message& message);
  void removeSelected();

  // tool_commands.cpp
  void mnuToolsPreview();
  void mnuToolsCompileMenu();
  std::optional<std::string> chooseCompiledFile();
  void startLinking(std::string_view menu, std::string_view submenus);
  void mnuToolsInsertMenuIntoWebpage();
  void mnuToolsCompileProperties();
  void mnuStylePickStyle();
  void mnuStyleApplyStyle();
  void mnuStyleSaveStyle();
  void mnuStyleOpenStyleLibrary();
  void mnuToolsShowTipOnStartup();
  void mnuToolsShowPreviewOnStartup();
  void mnuHelpTipOfTheDay();
  void mnuHelpAbout();
  void noteFailures(const Findings& findings);

  // start_stop.cpp
  void RegisterFileAssociations();
  void readGeometry();
  void openCommandLine(std::string_view commandLine);
  void saveGeometry();

  friend struct CommandHandler;
  bool FirstActivation_ = true;
  /// The file that is named as the document's holds more than was read: it is not written over unasked.
  bool isPartlyRead_ = false;
  /// What the document was last read from or saved to. Save asks ahead of replacing any other file.
  std::string ownFile_;
  RecentFiles recent_;
};

}  // namespace nimbrel
