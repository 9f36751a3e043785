#include <gmock/gmock.h>

#include "menu_files.h"
#include "model/structure.h"
#include "platform/memory/memory_file_system.h"
#include "support/generated_document.h"

namespace nimbrel {
namespace {

class MenuFile : public testing::Test {
 protected:
  MenuFile() { BuildDefaultDocument(document); }

  ItemObj& item() { return *document.get<ItemObj>(*document.tvTreeView.find("I1")); }
  Document writtenAndRead() const { return readBytes(menuFileText(document)); }

  Document document;
};

TEST_F(MenuFile, OfTheWorkedExampleIsAsItStands) {
  document = {};
  AddMainMenu(document);
  AddItem(document, "M0");
  auto& submenu = *document.get<SubmenuObj>(*AddSubmenu(document, "I1"));
  AddItem(document, "S2");
  SetDefaultValues(submenu);  // not dressed as the menu
  submenu.SubmenuName = "Submenu2";
  const auto golden = bytesOf(goldenMenuFiles / "worked-example.nbr");
  EXPECT_EQ(menuFileText(document), golden);
  EXPECT_EQ(readBytes(golden), document);
}

TEST_F(MenuFile, IsReadBackEqual) {
  for (unsigned seed = 0; seed < 40; ++seed) {
    document = generatedDocument(seed, 1 + static_cast<int>(seed));
    Document back;
    Findings notes;
    readBytes(menuFileText(document), back, notes);
    EXPECT_EQ(back, document) << "seed " << seed;
    EXPECT_TRUE(notes.empty()) << notes[0].text();
  }
}

TEST_F(MenuFile, WithACommaInItsHeaderIsReadBackWhole) {
  document.settings.CompiledPath = "C:\\site, one";
  document.settings.nbrSubmenusFrame = "a \"b\",\nc";
  auto read = writtenAndRead();
  EXPECT_EQ(std::exchange(read.settings.nbrSubmenusFrame, document.settings.nbrSubmenusFrame), "a 'b', c")
      << "a likeness, rather than a file that cannot be read";
  EXPECT_EQ(read, document);
}

TEST_F(MenuFile, ChangesAFewValues) {
  item().HasSubmenu = 5;
  item().ItemTooltip = " 10 m\xB3 ";
  item().StatusBarText = " \"quoted\" ";
  document = writtenAndRead();
  EXPECT_EQ(item().HasSubmenu, -1);                 // kept: any number but 0 is a flag
  EXPECT_EQ(item().ItemTooltip, "10 m,");           // kept: outer blanks go, the escape character is a comma
  EXPECT_EQ(item().StatusBarText, " \"quoted\" ");  // marks keep both
  item().FontFamily1 = "Verdana,Arial";             // kept: a raw comma stands as it is
  EXPECT_THAT(menuFileText(document), testing::HasSubstr(",Verdana,Arial,"));
}

TEST_F(MenuFile, IsSavedWholeOrNotAtAll) {
  MemoryFileSystem files;
  files.files = {{"C:\\menus\\a.nbr", "old"}};
  files.failsNow = failingFrom(0);
  EXPECT_THROW(SaveMenuFile(files, "C:\\menus\\a.nbr", document), FileError);
  EXPECT_EQ(files.read("C:\\menus\\a.nbr"), "old");
  files.failsNow = nullptr;
  SaveMenuFile(files, "C:\\menus\\a.nbr", document);
  EXPECT_EQ(files.read("C:\\menus\\a.nbr"), menuFileText(document));
}

}  // namespace
}  // namespace nimbrel
