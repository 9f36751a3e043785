#include "forms/property_sheet.h"

#include <gmock/gmock.h>

#include "fixtures.h"

namespace nimbrel {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

struct ItemSheet : testing::Test, TestSheet<ItemObj> {};
struct MenuSheet : testing::Test, TestSheet<MenuObj> {};

TEST_F(MenuSheet, CorrectsEntriesAndRaisesChangeOnce) {
  EXPECT_EQ(edit(&MenuObj::HorizontalDistanceFromCorner, "9999"), "2000");
  EXPECT_EQ(edit(&MenuObj::HorizontalDistanceFromCorner, ""), "0");
  EXPECT_EQ(edit(&MenuObj::JavascriptOnOpen, "n"), "");
  EXPECT_EQ(edit(&MenuObj::BGColor, "#"), "#000000");
  for (const auto* text : {"#1234567", "abc", "#GG0000", "(Transparent)"}) {
    EXPECT_EQ(edit(&MenuObj::BGColor, text), "(Transparent)") << text;
  }
  EXPECT_EQ(edit(&MenuObj::BGImage, "   "), "");
  EXPECT_EQ(value(&MenuObj::BGImage), "");
  EXPECT_EQ(edit(&MenuObj::BGImage, " (no_image) "), "(no_image)");
  EXPECT_EQ(value(&MenuObj::BGImage), "n");
  edit(&MenuObj::menuname, "Two\r\nlines");
  EXPECT_EQ(value(&MenuObj::menuname), "Two  lines");  // a line end would end the value in a menu file
  EXPECT_THAT(changes, ElementsAre("Horizontal Distance from Edge ", "Horizontal Distance from Edge ",
                                   "Main Menu BG Color", "Main Menu BG Color", "Main Menu BG Image",
                                   "Main Menu BG Image", "Main Menu Name"));
}

TEST_F(MenuSheet, OpensOneCellAtATimeBelowAHeadingAndNoneOutside) {
  sheet.EnterCell(cell(&MenuObj::menuname).row - 1, column::Normal);
  enter(&MenuObj::MenuType);
  EXPECT_EQ(sheet.cursorRow(), cell(&MenuObj::menuname).row);
  EXPECT_EQ(sheet.HelpLabel1.text, "Main Menu Name");
  sheet.LeaveCell();
  EXPECT_FALSE(sheet.txtEntry.visible || sheet.lblMoreHelpLink.visible);
  for (const int outside : {-1, sheet.RowCount()}) sheet.EnterCell(outside, column::Normal);
  EXPECT_FALSE(sheet.Editing());
}

TEST_F(ItemSheet, RowsOfOneStateOpenOnlyThatCell) {
  sheet.EnterCell(cell(&ItemObj::StatusBarText).row, column::MouseClick);
  EXPECT_EQ(sheet.cursorColumn(), column::MouseOver);
  EXPECT_FALSE(sheet.btnReplicate.visible || sheet.lblExamplesLink.visible);
  sheet.LeaveCell();
  sheet.EnterCell(cell(&ItemObj::ItemName1).row, column::Replicate);
  EXPECT_EQ(sheet.cursorColumn(), column::Normal);
  EXPECT_TRUE(sheet.btnReplicate.visible && sheet.lblExamplesLink.visible);
}

TEST_F(ItemSheet, HelpNamesTheState) {
  EXPECT_EQ(sheet.row(cell(&ItemObj::FontBold2).row).helpText(column::MouseOver),
            "Does the Item's text show bold on \"Mouse Over\" state?");
  enter(&ItemObj::HasSubmenuImage3);
  EXPECT_EQ(sheet.HelpContextID(), 1420);
  sheet.click(sheet.lblMoreHelpLink);
  EXPECT_THAT(topics, ElementsAre(1420));
  sheet.click(sheet.lblExamplesLink);
  EXPECT_EQ(viewer.brwWebBrowser.text,
            "C:\\program\\Live Examples\\LE_item_has_submenu_image\\LE_item_has_submenu_image.html");
  EXPECT_EQ(viewer.caption, "Live Example for property: \"\"Has Submenu\" Image\"");
}

TEST_F(ItemSheet, ReplicatingCommitsThenCopiesNormal) {
  enter(&ItemObj::ItemName3);
  sheet.type("replaced by Normal");
  sheet.click(sheet.btnReplicate);
  EXPECT_THAT(changes, ElementsAre("Item Name", "Item Name"));
  EXPECT_EQ(value(&ItemObj::ItemName3), element.ItemName1.str());
  EXPECT_EQ(sheet.Shown(sheet.cursorRow(), column::MouseOver), element.ItemName1);
  EXPECT_TRUE(sheet.Editing() && sheet.cursorColumn() == column::Normal);
}

TEST_F(ItemSheet, AFontThatIsNotInstalledShowsTheLastAndStaysUntilItsOwnCellChanges) {
  element.FontFamily1 = element.FontFamily2 = element.FontFamily3 = "Elsewhere";
  fill();
  const int row = cell(&ItemObj::FontFamily1).row;
  EXPECT_EQ(edit(&ItemObj::FontFamily1, "Elsewhere"), "arial");
  EXPECT_THAT(changes, IsEmpty());
  enter(&ItemObj::FontFamily1);
  EXPECT_THAT(sheet.lstSortedList.list,
              ElementsAre("arial", "cursive", "fantasy", "monospace", "sans-serif", "serif", "Zapf"));
  sheet.choose(sheet.lstSortedList, {6});  // ignored: the list is closed
  sheet.txtEntry_Click();
  sheet.choose(sheet.lstSortedList, {6});
  EXPECT_FALSE(sheet.lstSortedList.visible);
  sheet.LeaveCell();
  GetValueFromPropertyControl(element, sheet, row);
  EXPECT_EQ(element.FontFamily1, "Zapf");
  EXPECT_EQ(element.FontFamily2, "Elsewhere");
  enter(&ItemObj::FontFamily1);
  sheet.click(sheet.btnReplicate);
  GetValueFromPropertyControl(element, sheet, row);
  EXPECT_EQ(element.FontFamily2, "Zapf");
}

TEST_F(ItemSheet, ButtonsPutTheChoiceIntoTheEntry) {
  asker.files = {std::nullopt};
  enter(&ItemObj::ItemImage1);
  sheet.click(sheet.btnColour);  // ignored: a button of other rows
  sheet.click(sheet.btnFile);    // cancelled
  EXPECT_EQ(sheet.txtEntry.text, "(no_image)");
  sheet.LeaveCell();

  enter(&ItemObj::BGColor2);
  asker.colours = {0x0000FFU};
  sheet.click(sheet.btnColour);
  EXPECT_EQ(sheet.swatch(sheet.cursorRow(), column::MouseOver), (Rgb{255, 0, 0}));
  EXPECT_NE(value(&ItemObj::BGColor2), "#FF0000");
  sheet.LeaveCell();
  EXPECT_EQ(value(&ItemObj::BGColor2), "#FF0000");

  asker.inForm = [](Form& form) { form.click(*form.find("cmdOk")); };
  enter(&ItemObj::FontSize1);
  EXPECT_TRUE(sheet.entryIsReadOnly());
  sheet.type(" 7px ");
  sheet.click(sheet.btnFontSize);
  EXPECT_EQ(sheet.txtEntry.text, "7px");
}

TEST_F(ItemSheet, TakingBackKeepsTheValue) {
  element.ItemImage1 = " outer blanks.gif ";
  fill();
  enter(&ItemObj::ItemImage1);
  sheet.type("other.gif");
  sheet.TakeBack();
  EXPECT_FALSE(sheet.Editing() || sheet.txtEntry.visible);
  EXPECT_EQ(value(&ItemObj::ItemImage1), " outer blanks.gif ");
  EXPECT_THAT(changes, IsEmpty());
}

TEST_F(ItemSheet, AnOpenCellKeepsItsTextWhenScrolledAndRefreshed) {
  enter(&ItemObj::DisplayNameAsTitle1);
  sheet.type("Image Only");
  sheet.click(sheet.btnCombo);
  sheet.Grid_Scroll(false);
  EXPECT_FALSE(sheet.txtEntry.visible || sheet.lstList.visible || sheet.btnReplicate.visible);
  sheet.RefreshPropertyValues();
  sheet.Grid_Scroll(true);
  EXPECT_TRUE(sheet.txtEntry.visible);
  sheet.LeaveCell();
  EXPECT_THAT(changes, ElementsAre("Item Contains"));
}

}  // namespace
}  // namespace nimbrel
