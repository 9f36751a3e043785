#include "persistence/older_records.h"

#include <gtest/gtest.h>

#include "menu_files.h"

namespace nimbrel {
namespace {

TEST(OlderVersions, BecomeTheCurrentOne) {
  const auto cases = entriesOf("older");
  EXPECT_EQ(cases.size(), 3U);
  for (const auto& folder : cases) {
    EXPECT_EQ(menuFileText(readBytes(bytesOf(folder / "read.nbr"))), bytesOf(folder / "written.nbr"))
        << folder;
  }
}

TEST(OlderVersions, LeaveWhatTheyDoNotCarryEmptyNotAtItsDefault) {
  Document document = readBytes(bytesOf(goldenMenuFiles / "older/nbr110/read.nbr"));
  const auto& menu = *document.get<MenuObj>(*document.tvTreeView.find("M0"));
  EXPECT_EQ(menu.JavascriptOnOpen, "");
  EXPECT_EQ(menu.ZIndex, 0);
  const auto& submenu = *document.get<SubmenuObj>(*document.tvTreeView.find("S2"));
  EXPECT_EQ(submenu.UniformItemWidths, 0);
  EXPECT_EQ(submenu.JavascriptOnClose, "");
  const auto& item = *document.get<ItemObj>(*document.tvTreeView.find("I5"));
  EXPECT_EQ(item.JavascriptCommand3, "");
  EXPECT_EQ(item.ItemCursor, 0);
}

TEST(OlderVersions, LeaveTheWayOfOpeningToWhatIsReadNext) {
  SubmenuCarryOver carryOver;
  Document document;
  Findings notes;
  const auto load = [&](const std::string& name) {
    readMenuFile(bytesOf(goldenMenuFiles / name), name, "", carryOver, document, notes);
  };
  load("older/nbr110/read.nbr");
  EXPECT_EQ(carryOver.bcSubmenusWhen, 1);
  EXPECT_EQ(carryOver.bcSubmenusWhere, -2.5);
  EXPECT_EQ(carryOver.bcSubmenusHow, 7);
  load("worked-example.nbr");
  EXPECT_EQ(carryOver.bcSubmenusHow, 7) << "the current version carries nothing over";
  load("older/nbr120/read.nbr");
  EXPECT_EQ(carryOver.bcSubmenusWhen, 0);
  EXPECT_EQ(carryOver.bcSubmenusHow, 1);
}

}  // namespace
}  // namespace nimbrel
