#include "editing/editor.h"

#include <gmock/gmock.h>

#include "model/structure.h"

namespace nimbrel {
namespace {

class EditorTest : public testing::Test {
 protected:
  EditorTest() {
    Document document;
    BuildDefaultDocument(document);
    editor.open(std::move(document));
  }

  void rename(const char* key, const char* name) {
    const auto& node = *editor.document().tvTreeView.find(key);
    auto item = std::get<ItemObj>(*editor.document().element(node));
    setNames(item, name);
    Edit edit("Name");
    edit.set(editor.document(), node, item, name);
    editor.apply(std::move(edit));
  }

  Editor editor;
};

TEST_F(EditorTest, IsCleanOnlyInTheSavedState) {
  std::vector<bool> told;
  const auto connection = editor.dirtyChanged.connect([&](bool isDirty) { told.push_back(isDirty); });
  rename("I1", "a");
  editor.markSaved();
  rename("I1", "b");
  editor.undo();
  EXPECT_FALSE(editor.isDirty());
  editor.undo();
  EXPECT_TRUE(editor.isDirty());
  rename("I1", "c");  // the saved state cannot be reached any more
  editor.undo();
  EXPECT_TRUE(editor.isDirty());
  EXPECT_EQ(editor.redoName(), "Name");
  editor.open({});
  EXPECT_EQ(editor.undoName(), std::nullopt);
  EXPECT_THAT(told, testing::ElementsAre(true, false, true, false, true, false));
}

TEST_F(EditorTest, AnEditThatMakesNoDifferenceMarksTheDocumentButIsNoStep) {
  rename("I1", "Item1");
  EXPECT_TRUE(editor.isDirty());
  EXPECT_EQ(editor.undoName(), std::nullopt);
  editor.markSaved();
  EXPECT_FALSE(editor.isDirty());
}

TEST_F(EditorTest, UndoLeavesTheTargetOfACompile) {
  auto settings = editor.document().settings;
  settings.nbrImagePath = "pictures";
  Edit edit("Compile Properties");
  edit.set(editor.document(), settings);
  editor.apply(std::move(edit));
  editor.setCompileTarget("C:\\site", "menu.js");
  editor.undo();
  EXPECT_EQ(editor.document().settings.nbrImagePath, "");
  EXPECT_EQ(editor.document().settings.CompiledName, "menu.js");
}

TEST_F(EditorTest, AListenerIsToldUntilItsConnectionEnds) {
  int changes = 0;
  {
    const auto connection = editor.nodeChanged.connect([&](const Node&) { ++changes; });
    rename("I1", "a");
  }
  rename("I1", "b");
  EXPECT_EQ(changes, 1);
}

}  // namespace
}  // namespace nimbrel
