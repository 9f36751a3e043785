#include "compiler/inspection.h"

#include <gmock/gmock.h>

#include "compiler/fixtures.h"
#include "platform/memory/memory_file_system.h"

namespace nimbrel {
namespace {

using testing::ElementsAre;

std::vector<std::string> findingsIn(const Document& document, const FileSystem& files = MemoryFileSystem()) {
  std::vector<std::string> texts;
  for (const auto& finding : inspect(document, files, "m.nbr")) {
    texts.push_back(finding.path + ": " + finding.text());
  }
  return texts;
}

TEST(Inspection, FindsNothingInASoundDocument) {
  EXPECT_THAT(findingsIn(menuWithTwoSubmenus()), ElementsAre());
}

TEST(Inspection, FindsBrokenNesting) {
  EXPECT_THAT(findingsIn({}), ElementsAre("m.nbr: there is no main menu"));

  Document document;
  auto& tree = document.tvTreeView;
  Node& root = tree.addRoot("I1", "");
  Node& other = tree.addRoot("X2", "");
  tree.add(root, Relationship::Child, "S3", "");
  tree.add(root, Relationship::Child, "S4", "");
  tree.add(root, Relationship::Child, "I5", "");
  tree.add(other, Relationship::Child, "S6", "");
  tree.add(other, Relationship::Child, "M7", "");
  EXPECT_THAT(findingsIn(document), ElementsAre("m.nbr: I1 is the root and not a main menu",
                                                "m.nbr: S4 is a second submenu of the item I1",
                                                "m.nbr: I5 is an item that hangs from the item I1",
                                                "m.nbr: X2 is neither a menu, a submenu nor an item",
                                                "m.nbr: X2 is a second root, which is not saved",
                                                "m.nbr: X2 is the root and not a main menu",
                                                "m.nbr: S6 is a submenu that does not hang from an item",
                                                "m.nbr: M7 is a main menu below the root"));
}

TEST(Inspection, FindsValuesThatBreakTheirLineOrTheScript) {
  auto document = menuWithTwoSubmenus();
  auto& item = get<ItemObj>(document, "I1");
  item.ItemName2 = "two\nlines";
  item.FontFamily1 = "Arial, serif";
  item.BorderColor3 = "it's";
  item.JavascriptCommand1 = "say(\"a,b\")\r";
  item.URL = "a\"b.html";
  EXPECT_THAT(
      findingsIn(document),
      ElementsAre("m.nbr: ItemName2 of I1 holds a line break, which ends the value in the file",
                  "m.nbr: FontFamily1 of I1 holds a comma, which shifts the values behind it in the file",
                  "m.nbr: BorderColor3 of I1 holds a single quote, which breaks the script",
                  "m.nbr: JavascriptCommand1 of I1 holds a line break, which ends the value in the file",
                  "m.nbr: URL of I1 holds a double quote, which breaks the script"));
}

TEST(Inspection, FindsPicturesThatWillNotShow) {
  MemoryFileSystem files;
  files.files = {
      {"a\\x.gif", gif(1, 1)}, {"b\\x.gif", gif(2, 2)}, {"it's.gif", gif(1, 1)}, {"t.txt", "text"}};
  auto document = menuWithTwoSubmenus();
  auto& menu = get<MenuObj>(document, "M0");
  auto& item = get<ItemObj>(document, "I5");
  menu.TitleImage = item.BGImage1 = "gone.gif";
  menu.BGImage = item.BGImage2 = "a\\x.gif";
  item.BGImage3 = "b\\x.gif";
  item.ItemImage1 = "t.txt";
  item.ItemImage2 = "it's.gif";
  item.ItemImage3 = "";
  EXPECT_THAT(
      findingsIn(document, files),
      ElementsAre("gone.gif: there is no such picture (used by M0)",
                  "t.txt: is of no known picture format (used by I5)",
                  "it's.gif: has a single quote in its name, which breaks the script",
                  "b\\x.gif: has the name of another picture, which is shown in its place (used by I5)"));
}

}  // namespace
}  // namespace nimbrel
