#include <gtest/gtest.h>

#include "menu_files.h"
#include "model/structure.h"
#include "persistence/property_line.h"
#include "persistence/record_reader.h"
#include "support/generated_document.h"

namespace nimbrel {
namespace {

TEST(MenuFile, OfTheWorkedExampleHasTheGoldenBytes) {
  Document document;
  AddMainMenu(document);
  AddItem(document, "M0");
  auto& submenu = *document.get<SubmenuObj>(*AddSubmenu(document, "I1"));
  AddItem(document, "S2");
  SetDefaultValues(submenu);  // not the style of the main menu
  submenu.SubmenuName = "Submenu2";
  const auto golden = bytesOf(goldenMenuFiles / "worked-example.nbr");
  EXPECT_EQ(menuFileText(document), golden);
  EXPECT_EQ(readBytes(golden), document);
}

TEST(MenuFile, IsReadBackEqual) {
  for (unsigned seed = 0; seed < 40; ++seed) {
    const auto document = generatedDocument(seed, 1 + static_cast<int>(seed));
    Document back;
    ReadNotes notes;
    readBytes(menuFileText(document), back, notes);
    EXPECT_EQ(back, document) << "seed " << seed;
    EXPECT_TRUE(notes.findings.empty()) << notes.findings[0].text();
  }
}

TEST(MenuFile, WithACommaInItsHeaderIsReadBackEqual) {
  Document document;
  document.settings.CompiledPath = "C:\\site, one";
  document.settings.nbrSubmenusFrame = "a \"b\",\nc";
  const auto read = readBytes(menuFileText(document));
  document.settings.nbrSubmenusFrame = "a 'b', c";  // the format cannot express quotes and line breaks
  EXPECT_EQ(read.settings, document.settings);
}

// Such files exist only once a property is added; until then the test makes the version up.
TEST(MenuFile, OfAnEarlierVersionWithEndMarksHasDefaultsForNewerProperties) {
  ItemObj item;
  SetDefaultValues(item);
  auto line = ParameterString(item);
  line.erase(line.find(",,1,0,0,0,sans-serif"), 9);  // tooltip, cursor and paddings
  line.erase(line.find(",n,n,n,n,n,"), 4);           // the commands of the first two states
  ReadNotes notes;
  FileHandle file("menu.nbr", line, notes);
  SubmenuCarryOver carryOver;
  Element element = ItemObj{};
  RecordReader(file, {V120, "", "", true}, "", carryOver).ReadPropertiesFromFile(element);
  EXPECT_EQ(std::get<ItemObj>(element), item);
  EXPECT_TRUE(notes.findings.empty());
}

}  // namespace
}  // namespace nimbrel
