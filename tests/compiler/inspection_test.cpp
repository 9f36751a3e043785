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
  for (const auto* path : {"C:\\a\\x.gif", "C:\\b\\x.gif", "C:\\a\\it's.gif", "C:\\id_rsa", "D:\\far.png"}) {
    files.files[path] = gif(1, 1);
  }
  auto document = menuWithTwoSubmenus();
  document.settings.nbrImagePath = "';alert(1);//";
  auto& item = get<ItemObj>(document, "I1");
  item.ItemName2 = "two\nlines";
  item.ItemImage1 = item.BGImage2 = "C:\\a\\x.gif";
  item.ItemImage2 = "C:\\a\\it's.gif";
  item.ItemImage3 = "";
  item.FontFamily1 = "Arial, serif";
  item.BGImage1 = "C:\\b\\x.gif";
  item.BGImage3 = "C:\\id_rsa";
  item.HasSubmenuImage1 = "D:\\far.png";
  item.ItemTooltip = "caf\xE9";
  std::vector<std::string> texts;
  for (const auto& finding : inspect(document, files, "C:\\m.nbr")) {
    texts.push_back((finding.severity == Severity::Warning ? "warning " : "") + finding.path + ": " +
                    finding.text());
  }
  EXPECT_THAT(
      texts,
      ElementsAre("C:\\m.nbr: ItemName2 of I1 holds a line break, which ends the value in the file",
                  "C:\\a\\it's.gif: has a single quote in its name, which breaks the script",
                  "C:\\m.nbr: FontFamily1 of I1 holds a comma, which shifts the values after it in the file",
                  "warning D:\\far.png: lies outside the folder of the menu file; a compile takes it from "
                  "there (used by I1)",
                  "C:\\b\\x.gif: has the name of another picture, which is shown in its place (used by I1)",
                  "C:\\id_rsa: is not a picture, by the ending of its name, and is left out (used by I1)",
                  testing::HasSubstr("The images folder must be inside the folder of the compiled menu"),
                  "C:\\m.nbr: nbrImagePath holds a single quote, which breaks the script",
                  "warning C:\\m.nbr: has letters outside ASCII, first in ItemTooltip of I1: pages that are "
                  "not in Windows-1252 "
                  "show them wrongly"));
}

/// A text that leaves its quotes becomes a part of the script.
TEST(Inspection, FindsEachTextThatLeavesItsQuotes) {
  struct Case {
    SharedText ItemObj::*field;
    const char* text;
    const char* flaw;
  };
  for (const auto& [field, text, flaw] : {
           Case{&ItemObj::FontFamily1, "';alert(1);//", "holds a single quote"},
           Case{&ItemObj::FontSize2, "4mm\\", "ends in a backslash"},
           Case{&ItemObj::BorderColor3, "#FFF'", "holds a single quote"},
           Case{&ItemObj::URL, "c:\\x\\", "holds a backslash that begins no escape"},
           Case{&ItemObj::URL, "c:\\docs\\", "ends in a backslash"},
           Case{&ItemObj::URL, "a\"b", "holds a double quote"},
           Case{&ItemObj::TargetFrame, "a\\", "ends in a backslash"},
           Case{&ItemObj::JavascriptCommand1, "go('a\\", "ends in a backslash"},
           Case{&ItemObj::JavascriptCommand2, "go('\\u12')", "holds a backslash that begins no escape"},
           Case{&ItemObj::JavascriptCommand3, "a\\\\\\", "ends in a backslash"},
       }) {
    auto document = menuWithTwoSubmenus();
    get<ItemObj>(document, "I1").*field = text;
    const auto found = findingsIn(document);
    ASSERT_EQ(found.size(), 1U) << text;
    EXPECT_THAT(found[0], testing::HasSubstr(std::string(" of I1 ") + flaw + ", which breaks the script"));
  }
  auto document = menuWithTwoSubmenus();
  auto& item = get<ItemObj>(document, "I1");
  item.FontFamily1 = "\"O\\'Neill\"";
  item.URL = "it's\\\\\\x41\\u{1F600}";
  item.JavascriptCommand1 = "say(\"it's\\n\")";
  item.ItemTooltip = "quotes ' \" and \\ are escaped";
  EXPECT_THAT(findingsIn(document), ElementsAre());
}

}  // namespace
}  // namespace nimbrel
