#include <gtest/gtest.h>

#include "menu_files.h"
#include "model/structure.h"
#include "platform/memory/memory_file_system.h"
#include "support/generated_document.h"

namespace nimbrel {
namespace {

Document workedExample() {
  Document document;
  AddMainMenu(document);
  const std::string item = AddItem(document, "M0")->Key;
  const std::string submenu = AddSubmenu(document, item)->Key;
  AddItem(document, submenu);
  SetDefaultValues(*document.get<SubmenuObj>(*document.tvTreeView.find(submenu)));  // not dressed as the menu
  document.get<SubmenuObj>(*document.tvTreeView.find(submenu))->SubmenuName = "Submenu2";
  return document;
}

TEST(MenuFile, OfTheWorkedExampleIsAsItStands) {
  const auto golden = bytesOf(goldenMenuFiles / "worked-example.nbr");
  ASSERT_FALSE(golden.empty());
  EXPECT_EQ(menuFileText(workedExample()), golden);
  EXPECT_EQ(readBytes(golden), workedExample());
}

TEST(MenuFile, IsReadBackEqual) {
  for (unsigned seed = 0; seed < 40; ++seed) {
    const Document document = generatedDocument(seed, 1 + static_cast<int>(seed));
    Document back;
    Findings notes;
    readBytes(menuFileText(document), back, notes);
    EXPECT_EQ(back, document) << "seed " << seed;
    EXPECT_TRUE(notes.empty()) << notes[0].text();
  }
}

TEST(MenuFile, WithACommaInItsHeaderIsReadBackWhole) {
  Document document;
  BuildDefaultDocument(document);
  document.settings.CompiledPath = "C:\\site, one";
  document.settings.nbrSubmenusFrame = "a \"b\",\nc";
  auto read = readBytes(menuFileText(document));
  EXPECT_EQ(read.settings.nbrSubmenusFrame, "a 'b', c")
      << "a likeness, rather than a file that cannot be read";
  read.settings.nbrSubmenusFrame = document.settings.nbrSubmenusFrame;
  EXPECT_EQ(read, document);
}

TEST(MenuFile, OfTheGreatestSizeIsReadBackEqual) {
  const Document document = largeDocument(32767);
  EXPECT_EQ(document.tvTreeView.size(), 32767U);
  EXPECT_TRUE(readBytes(menuFileText(document)) == document);
}

TEST(MenuFile, IsSavedWholeOrNotAtAll) {
  MemoryFileSystem files;
  files.files = {{"C:\\menus\\a.nbr", "old"}};
  files.failsNow = failingFrom(0);
  EXPECT_THROW(SaveMenuFile(files, "C:\\menus\\a.nbr", workedExample()), FileError);
  EXPECT_EQ(files.read("C:\\menus\\a.nbr"), "old");
  files.failsNow = nullptr;
  SaveMenuFile(files, "C:\\menus\\a.nbr", workedExample());
  EXPECT_EQ(files.read("C:\\menus\\a.nbr"), menuFileText(workedExample()));
}

}  // namespace
}  // namespace nimbrel
