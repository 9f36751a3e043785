// Undo and redo of every command that changes the document, in random sequences.
#include <cstdlib>
#include <gmock/gmock.h>
#include <random>

#include "persistence/menu_file.h"
#include "properties/element_values.h"
#include "recovery/menu_mirror.h"
#include "shell/main_window.h"
#include "support/scripted_ports.h"

namespace nimbrel {
namespace {

/// The tree as a listener knows it from the changes of rows alone.
class RowListener {
 public:
  explicit RowListener(Editor& editor) : editor_(editor) {
    connections_.push_back(editor.documentReplaced.connect([this] { rows_ = allRows(); }));
    connections_.push_back(editor.rowsAboutToChange.connect([this](const RowChange& change) {
      if (change.kind == RowChange::Insert) return;
      auto& row = rows_[keyOf(change.parent)];
      moved_ = row.at(change.row);
      row.erase(row.begin() + static_cast<std::ptrdiff_t>(change.row));
    }));
    connections_.push_back(editor.rowsChanged.connect([this](const RowChange& change) { add(change); }));
  }

  bool isRight() const { return rows() == allRows(); }

 private:
  using Rows = std::map<std::string, std::vector<std::string>>;

  static std::string keyOf(const Node* node) { return node == nullptr ? "" : node->Key; }

  void add(const RowChange& change) {
    if (change.kind == RowChange::Remove) return;
    const bool isMove = change.kind == RowChange::Move;
    const auto* parent = isMove ? change.newParent : change.parent;
    auto row = isMove ? change.newRow : change.row;
    if (isMove && change.parent == change.newParent && row > change.row) --row;
    const Node* node = isMove ? editor_.document().tvTreeView.find(moved_) : parent->Child();
    for (auto steps = isMove ? 0 : row; steps > 0; --steps) node = node->Next();
    auto& siblings = rows_[keyOf(parent)];
    siblings.insert(siblings.begin() + static_cast<std::ptrdiff_t>(row), node->Key);
    if (!isMove) addBelow(*node, rows_);
  }

  static void addBelow(const Node& top, Rows& rows) {
    for (const Node* node = &top; node != nullptr; node = following(node, &top)) {
      auto& children = rows[node->Key];
      children.clear();
      for (const Node* child = node->Child(); child != nullptr; child = child->Next())
        children.push_back(child->Key);
    }
  }

  Rows allRows() const {
    Rows rows;
    for (const Node* root = editor_.document().tvTreeView.root(); root != nullptr; root = root->Next()) {
      rows[""].push_back(root->Key);
      addBelow(*root, rows);
    }
    return rows;
  }

  /// Without nodes that were removed.
  Rows rows() const {
    Rows present;
    for (const auto& [key, children] : rows_) {
      if (key.empty() || editor_.document().tvTreeView.find(key) != nullptr) present.emplace(key, children);
    }
    return present;
  }

  Editor& editor_;
  Rows rows_;
  std::string moved_;
  std::vector<Connection> connections_;
};

class History : public testing::Test {
 protected:
  History() { main.Activate({}, StartWindows::None); }

  std::size_t below(std::size_t count) {
    return std::uniform_int_distribution<std::size_t>(0, count - 1)(random);
  }

  void changeSomething() {
    constexpr std::array commands{"mnuEditCut",
                                  "mnuEditCopy",
                                  "mnuEditPaste",
                                  "mnuEditDuplicate",
                                  "mnuEditResetProperty",
                                  "mnuEditResetElement",
                                  "mnuItemAddItem",
                                  "mnuItemAddItem",
                                  "mnuItemDeleteItem",
                                  "mnuItemMoveItemUp",
                                  "mnuItemMoveItemDown",
                                  "mnuItemIndent",
                                  "mnuItemOutdent",
                                  "mnuSubmenuAddSubmenu",
                                  "mnuSubmenuAddSubmenu",
                                  "mnuSubmenuDeleteSubmenu",
                                  "mnuStylePickStyle",
                                  "mnuStyleApplyStyle",
                                  "mnuToolsCompileProperties"};
    Nodes nodes;
    do nodes.push_back(&anyNode());
    while (below(3) == 0);
    std::ranges::sort(nodes);
    nodes.erase(std::ranges::unique(nodes).begin(), nodes.end());
    main.SelectNodes(nodes);
    switch (below(8)) {
      case 0: dragSomething(); return;
      case 1: main.replace(std::to_string(below(9)), std::to_string(below(9)), TextKind::All); return;
      case 2:
        system.clipboard.isForeign = true;  // as if another window had put it there
        main.run("mnuEditPaste");
        return;
      default: break;
    }
    system.asker.inForm = [this](Form& form) {
      if (auto* box = form.find("chkIgnoreThirdState")) form.check(*box, below(2) == 1);
      if (auto* ok = form.find("cmdOk")) form.click(*ok);
    };
    if (below(2) == 0) {
      auto& sheet = *main.visibleSheet();
      const int row = static_cast<int>(below(static_cast<std::size_t>(sheet.RowCount())));
      sheet.EnterCell(row, static_cast<int>(below(5)));
      sheet.type(std::to_string(below(9)));
    }
    system.asker.answers.clear();
    const std::string command = commands.at(below(commands.size()));
    if (command.find("Delete") != std::string::npos) system.asker.answers.push_back(BoxButton::Yes);
    main.run(command);
    main.LeaveCells();
    system.asker.answers.clear();
  }

  const Node& anyNode() {
    auto& tree = main.document.tvTreeView;
    return *tree.at(below(tree.size()) + 1);
  }

  void dragSomething() {
    const auto nodes = topmost(main.document, main.selection());
    const auto& target = anyNode();
    const auto drop = static_cast<Drop>(below(3));
    const bool copies = below(2) == 0;
    if (below(4) == 0) {
      main.drop(main.contentOf(nodes), target, drop);
    } else if (main.canDrop(nodes, target, drop, copies)) {
      main.drop(nodes, target, drop, copies);
    }
  }

  /// The visible sheet shows what one that is filled afresh shows.
  void requireSheetIsCurrent() {
    const auto& shown = *main.visibleSheet();
    PropertySheet fresh(shown.table(), {system.asker, system, system.ports.fonts, folder, size},
                        main.liveExamples);
    bool isFirst = true;
    for (const auto* node : main.selection()) {
      if (kindOf(node->Key) != kindOf(main.selected()->Key)) continue;
      std::visit(
          [&](const auto& element) {
            isFirst ? PutValuesToPropertyControl(element, fresh) : AddValuesToPropertyControl(element, fresh);
          },
          *main.document.element(*node));
      isFirst = false;
    }
    fresh.RefreshPropertyValues();
    for (int row = 0; row < fresh.RowCount(); ++row) {
      for (const int col : valueColumns)
        EXPECT_EQ(shown.Shown(row, col).view(), fresh.Shown(row, col).view());
    }
  }

  void requireListenersAgree() {
    EXPECT_TRUE(rows.isRight());
    std::string kept;
    mirror.appendTo(kept);
    EXPECT_EQ(kept, menuFileText(main.document));
    EXPECT_EQ(main.state.IsDirty, main.editor.isDirty());
    EXPECT_EQ(main.canRun("mnuEditUndo"), main.editor.undoName().has_value());
    EXPECT_EQ(main.canRun("mnuEditRedo"), main.editor.redoName().has_value());
    ASSERT_NE(main.selected(), nullptr);
    ASSERT_EQ(main.visibleSheet(), &main.sheetOf(kindOf(main.selected()->Key)));
    requireSheetIsCurrent();
  }

  std::minstd_rand random{std::minstd_rand::default_seed};
  ScriptedPorts system;
  const std::string folder;
  std::string size;
  frmMain main{system.ports, "C:\\p"};
  RowListener rows{main.editor};
  MenuMirror mirror;  ///< as recovery keeps it
  Connection opened =
      main.editor.documentReplaced.connect([this] { mirror.apply(wholeMenu(main.document)); });
  Connection edited =
      main.editor.edited.connect([this](const Edit& edit) { mirror.apply(changeBy(edit, main.document)); });
};

TEST_F(History, UndoingAllGivesTheFirstDocumentAndRedoingAllTheLast) {
  // For a long run by hand: NIMBREL_SEQUENCES=15000 makes about a million changes.
  const int sequences =
      std::getenv("NIMBREL_SEQUENCES") == nullptr ? 20 : std::atoi(std::getenv("NIMBREL_SEQUENCES"));
  constexpr int changes = 60;
  for (int sequence = 0; sequence < sequences; ++sequence) {
    main.run("mnuFileNew");
    main.editor.markSaved();
    const auto first = main.document;
    for (int i = 0; i < changes; ++i) {
      changeSomething();
      if (below(5) == 0) main.run("mnuEditUndo");
      requireListenersAgree();
    }
    while (main.editor.redoName()) main.run("mnuEditRedo");
    const auto last = main.document;
    while (main.editor.undoName()) main.run("mnuEditUndo");
    EXPECT_TRUE(main.document == first);
    EXPECT_EQ(menuFileText(main.document), menuFileText(first));
    requireListenersAgree();
    while (main.editor.redoName()) main.run("mnuEditRedo");
    EXPECT_TRUE(main.document == last);
    EXPECT_EQ(menuFileText(main.document), menuFileText(last));
    requireListenersAgree();
    main.editor.markSaved();
  }
}

TEST_F(History, ReturnsToTheSelectionAndTheCellOfTheChange) {
  main.SelectNode(main.document.tvTreeView.find("I2"));
  const auto cell = cellOf<ItemObj>(&ItemObj::ItemTooltip);
  main.prctlItem.EnterCell(cell.row, cell.column);
  main.prctlItem.type("hint");
  main.SelectNode(main.document.tvTreeView.find("I3"));
  main.run("mnuItemAddItem");
  EXPECT_EQ(main.commands.entry("mnuEditUndo").caption, "&Undo Add Item");
  main.run("mnuEditUndo");
  EXPECT_EQ(main.selected()->Key, "I3");
  main.run("mnuEditUndo");
  EXPECT_EQ(main.selected()->Key, "I2");
  EXPECT_EQ(main.prctlItem.cursorRow(), cell.row);
  EXPECT_FALSE(main.prctlItem.Editing());
  EXPECT_FALSE(main.state.IsDirty);
}

}  // namespace
}  // namespace nimbrel
