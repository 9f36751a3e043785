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

TEST(Inspection, FindsBadValuesAndPictures) {
  MemoryFileSystem files;
  files.files = {{"a\\x.gif", gif(1, 1)}, {"b\\x.gif", gif(2, 2)}, {"it's.gif", gif(1, 1)}};
  auto document = menuWithTwoSubmenus();
  auto& item = get<ItemObj>(document, "I1");
  item.ItemName2 = "two\nlines";
  item.ItemImage1 = item.BGImage2 = "a\\x.gif";
  item.ItemImage2 = "it's.gif";
  item.ItemImage3 = "";
  item.FontFamily1 = "Arial, serif";
  item.BorderColor3 = "it's";
  item.BGImage1 = "b\\x.gif";
  item.JavascriptCommand1 = "say(\"a,b\")\r";
  item.TargetFrame = "a\"b.html";
  EXPECT_THAT(
      findingsIn(document, files),
      ElementsAre("m.nbr: ItemName2 of I1 holds a line break, which ends the value in the file",
                  "it's.gif: has a single quote in its name, which breaks the script",
                  "m.nbr: FontFamily1 of I1 holds a comma, which shifts the values after it in the file",
                  "m.nbr: BorderColor3 of I1 holds a single quote, which breaks the script",
                  "b\\x.gif: has the name of another picture, which is shown in its place (used by I1)",
                  "m.nbr: JavascriptCommand1 of I1 holds a line break, which ends the value in the file",
                  "m.nbr: TargetFrame of I1 holds a double quote, which breaks the script"));
}

}  // namespace
}  // namespace nimbrel
