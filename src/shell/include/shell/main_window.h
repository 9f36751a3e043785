#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "compiler/compiled_menu.h"
#include "editing/editor.h"
#include "editing/find.h"
#include "forms/browser_form.h"
#include "forms/link_forms.h"
#include "forms/live_examples.h"
#include "forms/property_sheet.h"
#include "gallery/style_picking.h"
#include "model/structure_editing.h"
#include "persistence/known_file.h"
#include "persistence/menu_file.h"
#include "platform/ports.h"
#include "recovery/recovery_writer.h"
#include "shell/command_states.h"
#include "shell/program_state.h"
#include "shell/recent_files.h"

namespace nimbrel {

struct Orphan;

/// The place of the main window on the screen, in twips (1/1440 inch).
struct Geometry {
  float left = 0;
  float top = 0;
  float width = 0;
  float height = 0;
};

inline constexpr int smallestFormWidth = 3000;  ///< twips

/// Whether the windows that open at the start are wanted. The author can still turn them off.
enum class StartWindows : std::uint8_t { Wanted, None };

/// The main window: the open document, its commands, and the state that all forms share. It draws nothing; a view
/// reads the public fields after each call. A command that fails throws, and leaves unsaved changes marked as such;
/// the caller reports the error and continues.
class frmMain {
 public:
  /// Reads the stored geometry and registers the file types. The ports must outlive the window.
  frmMain(Ports& ports, std::string programFolder);

  /// Called when the window is activated. The first time, creates a new document, opens the file that the command line
  /// names, and opens the windows that the author wants at the start.
  void Activate(std::string_view commandLine = {}, StartWindows windows = StartWindows::Wanted);

  /// Called when the window gets the focus again. Offers to load the document's file again if another program has
  /// changed it and nothing is unsaved.
  void offerReload();

  /// Asks about unsaved changes before the window closes. Returns false if it must stay open.
  bool QueryClose();

  /// Runs the command of a menu entry, a context menu entry or a toolbar key. Returns false for an unknown name.
  bool run(std::string_view name);
  /// Whether the author can choose the entry now.
  bool canRun(std::string_view name) const;

  void tvTreeView_NodeClick(const Node* node);
  /// `key` is a code of shell/keys.h. Called after the tree has moved its selection.
  void tvTreeView_KeyUp(int key);
  /// The name of the context menu for the current node.
  std::string_view contextMenu() const;

  /// Called when another program has put something on the clipboard, or nothing of it is left there.
  void clipboardChanged();

  /// Widens a window that is too narrow. Returns whether it did.
  bool Form_Resize(Geometry& window, bool isMinimised) const;

  /// Does nothing for nullptr.
  void SelectNode(const Node* node);
  /// Selects several nodes. The first becomes the current one. Does nothing without nodes.
  void SelectNodes(const Nodes& nodes);
  /// The current node, whose sheet is visible, or nullptr.
  const Node* selected() const { return document.tvTreeView.find(selectedKey_); }
  /// All selected nodes, the current one first.
  Nodes selection() const;
  void LeaveCells();
  void CreatePreviewFile();
  void UpdateMRUList(const std::string& path, const std::string& name);

  /// Gives a node another name: an item in all of its states. Line breaks become blanks.
  void rename(const Node& node, std::string name);

  /// Whether these nodes can be dropped there, and do it: as a move, or as copies.
  bool canDrop(const Nodes& nodes, const Node& target, Drop drop, bool copies) const;
  void drop(const Nodes& nodes, const Node& target, Drop drop, bool copies);
  /// Drops what another program has.
  void drop(const NodeClipboard::Content& content, const Node& target, Drop drop);
  /// What other programs get of these nodes.
  NodeClipboard::Content contentOf(const Nodes& nodes) const;

  /// The nodes with a text (`nodesWith`), which Find Next and Find Previous go through from now on.
  std::vector<const Node*> find(std::string text);
  /// Replaces a text in the whole document. Returns how many were replaced. Line breaks become blanks.
  std::size_t replace(std::string_view text, std::string by, TextKind kind);

  PropertySheet& sheetOf(Kind kind);
  /// The visible sheet, or nullptr if the tree is empty.
  PropertySheet* visibleSheet();

  Ports& ports;
  ProgramState state;
  Editor editor;
  const Document& document = editor.document();
  CommandStates commands;
  std::string title;
  Geometry geometry;
  bool isMinimised = false;
  KeyedNumbers numbers;     ///< of the last compile or preview of this document
  bool isFinding = false;   ///< the author wants to type what to find; the view resets it
  bool isRenaming = false;  ///< the author wants to rename the selected node in the tree; the view resets it

  frmLiveExamples liveExamples;
  frmBrowser browser;
  PropertySheet prctlMenu;
  PropertySheet prctlSubmenu;
  PropertySheet prctlItem;
  StylePicking picking;
  Clipboard clipboard;
  SubmenuCarryOver carryOver;  ///< values that submenus in older menu files inherit from the main menu

 private:
  // main_window.cpp
  SheetPorts sheetPorts();
  void bindSheets();
  void listen();
  void EnableCommands(Kind kind);
  void enablePaste(bool enabled);
  void RefreshCurrentSheet();
  void refill(const Node& node);
  Spot spot() const;
  /// The selected nodes of a kind.
  Nodes selectedOf(Kind kind) const;
  void sheetChanged(Kind sheet, int ordinal);
  void select(const Node* node);
  Kind selectedKind() const;
  /// The element of the selected node, or nullptr.
  const Element* selectedElement() const;
  void apply(Edit edit);
  void showHistory();
  void show(const Spot& spot);
  void setTitle(std::string_view document);

  // document_commands.cpp
  void mnuFileNew();
  void mnuFileOpen();
  void mnuFileSave();
  void mnuFileSaveAs();
  void mnuFileMRU(std::size_t slot);
  bool PromptToSave();
  bool load();
  bool save(const std::string& path);
  void warnOfLoss(const std::string& path, const std::string& reason);
  bool mayReplace(const std::string& path) const;
  void outdatePreview();
  void splitPath(const std::string& path);

  // structure_commands.cpp
  void mnuEditUndo();
  void mnuEditRedo();
  void mnuItemAddItem();
  void mnuItemDeleteItem();
  void mnuItemMove(bool up);
  void mnuSubmenuAddSubmenu();
  void mnuSubmenuDeleteSubmenu();
  void add(std::string_view editName, Insertions insertions);
  bool askToDelete(const Message& message);
  void remove(const Nodes& nodes, std::string_view editName);
  void deleteSeveral();
  std::vector<std::pair<const Node*, NodePlace>> passed(bool up) const;
  void moveSeveral(bool up);
  Nodes selectedSiblings() const;
  const Node* indentTarget() const;
  const Node* outdentTarget() const;
  void mnuItemIndent();
  void mnuItemOutdent();

  // clipboard_commands.cpp
  void mnuEditCut();
  void mnuEditCopy();
  void mnuEditPaste();
  void mnuEditDuplicate();
  bool copySelected();
  Clipboard read(const NodeClipboard::Content& content, const Node& target) const;

  // find_commands.cpp
  void mnuEditReset(bool onlyRow);
  void findNext(bool forward);

  // tool_commands.cpp
  void mnuToolsPreview();
  void mnuToolsCompileMenu();
  std::optional<std::string> chooseCompiledFile();
  LinkPorts linkPorts();
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

  // recovery_commands.cpp
  void keepForRecovery();
  void offerRecovery();
  void recover(Orphan orphan);

  // start_stop.cpp
  void RegisterFileAssociations();
  void readGeometry();
  void openCommandLine(std::string_view commandLine);
  void saveGeometry();

  friend struct CommandTable;
  std::string findText_;
  std::string selectedKey_;             ///< of the current node; empty: nothing is selected
  std::vector<std::string> otherKeys_;  ///< of the other selected nodes
  bool FirstActivation_ = true;
  /// The file of the document was not read whole, so that Save must not replace it without a question.
  bool isPartlyRead_ = false;
  /// The file that the document was last read from or saved to. Save asks before it replaces any other file.
  KnownFile ownFile_;
  std::optional<FileStatus> declinedReload_;  ///< of a changed file that the author did not want to load
  RecentFiles recent_;
  std::optional<RecoveryWriter> recovery_;  ///< none without a state folder
  bool hasWholeCopy_ = false;               ///< of this document, so that it needs the changes alone
  std::vector<Connection> connections_;
};

}  // namespace nimbrel
