#include "properties/property_sheet.h"

#include <gmock/gmock.h>

#include "fixtures.h"
#include "model/element.h"

namespace nimbrel {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class ItemSheet : public testing::Test, protected TestSheet {
 protected:
  ItemSheet() : TestSheet(itemTable()) {
    SetDefaultValues(item);
    PutValuesToPropertyControl(item, sheet);
  }
  ItemObj item;
};

class MenuSheet : public testing::Test, protected TestSheet {
 protected:
  MenuSheet() : TestSheet(menuTable()) {
    MenuObj menu;
    SetDefaultValues(menu);
    PutValuesToPropertyControl(menu, sheet);
  }
};

TEST_F(MenuSheet, EntriesAreReplacedQuietlyAndChangesRaisedOnce) {
  EXPECT_EQ(edit(4, 1, "9999"), "2000");
  EXPECT_EQ(edit(4, 1, "-5"), "0");
  EXPECT_EQ(edit(4, 1, ""), "0");
  EXPECT_EQ(edit(31, 1, "#1234567"), "(Transparent)");
  EXPECT_EQ(edit(31, 1, "#1234567"), "(Transparent)");
  EXPECT_EQ(edit(39, 1, ""), "");
  EXPECT_EQ(edit(39, 1, "n"), "");
  EXPECT_EQ(edit(32, 1, "   "), "");
  EXPECT_EQ(text(32, 1), "");
  EXPECT_EQ(edit(32, 1, " (no_image) "), "(no_image)");
  EXPECT_EQ(text(32, 1), "n");
  EXPECT_EQ(edit(1, 1, "perhaps"), "yes");
  EXPECT_EQ(edit(1, 1, "no"), "no");
  EXPECT_THAT(changes, ElementsAre(4, 4, 31, 32, 32, 1));
}

TEST_F(MenuSheet, HeadingsLeadToTheRowBelow) {
  sheet.EnterCell(0, column::Caption);
  EXPECT_EQ(sheet.cursorRow(), 1);
  sheet.EnterCell(20, 1);  // one cell at a time
  EXPECT_EQ(sheet.cursorRow(), 1);
  sheet.LeaveCell();
  sheet.EnterCell(8, 1);
  EXPECT_EQ(sheet.cursorRow(), 9);
  EXPECT_EQ(sheet.HelpLabel1.text, "Main Menu Name");
  sheet.LeaveCell();
  EXPECT_THAT(sheet.HelpLabel1.text, IsEmpty());
  EXPECT_FALSE(sheet.txtEntry.visible || sheet.lblMoreHelpLink.visible);
  for (const int outside : {-1, 41}) sheet.EnterCell(outside, 1);
  EXPECT_FALSE(sheet.Editing());
}

TEST_F(MenuSheet, ALineBreakDoesNotReachTheFile) {
  edit(9, 1, "Two\r\nlines");
  EXPECT_EQ(text(9, 1), "Two  lines");
}

TEST_F(ItemSheet, KeepsAFontThatIsNotInstalledInTheStatesThatWereNotEdited) {
  item.FontFamily1 = item.FontFamily2 = item.FontFamily3 = "Elsewhere";
  PutValuesToPropertyControl(item, sheet);
  edit(8, column::Normal, "serif");
  GetValueFromPropertyControl(item, sheet, 8);
  EXPECT_EQ(item.FontFamily1, "serif");
  EXPECT_EQ(item.FontFamily2, "Elsewhere");
  sheet.EnterCell(8, column::Normal);
  sheet.click(sheet.btnReplicate);
  GetValueFromPropertyControl(item, sheet, 8);
  EXPECT_EQ(item.FontFamily2, "serif");
}

TEST_F(ItemSheet, RowsOfOneStateTakeNoOther) {
  edit(22, column::Normal, "a.html");
  EXPECT_EQ(text(22, column::MouseClick), "a.html");
  EXPECT_EQ(text(22, column::Normal), "");
  sheet.EnterCell(20, column::MouseClick);
  EXPECT_EQ(sheet.cursorColumn(), column::MouseOver);
  EXPECT_FALSE(sheet.btnReplicate.visible || sheet.lblExamplesLink.visible);
  sheet.LeaveCell();
  sheet.EnterCell(0, column::Replicate);
  EXPECT_EQ(sheet.cursorColumn(), column::Normal);
  EXPECT_TRUE(sheet.btnReplicate.visible && sheet.lblExamplesLink.visible);
}

TEST_F(ItemSheet, HelpTellsTheState) {
  EXPECT_EQ(sheet.row(10).helpText(column::MouseOver),
            "Does the Item's text show bold on \"Mouse Over\" state?");
  EXPECT_EQ(sheet.row(21).helpText(column::MouseClick).find("Normal"), std::string::npos);
  sheet.EnterCell(14, column::MouseClick);
  EXPECT_EQ(sheet.HelpLabel1.text, "\"Has Submenu\" Image");
  EXPECT_EQ(sheet.HelpContextID(), 1420);
  sheet.click(sheet.lblMoreHelpLink);
  EXPECT_EQ(system.topic, 1420);
  sheet.click(sheet.lblExamplesLink);
  EXPECT_EQ(viewer.brwWebBrowser.text,
            "C:\\program\\Live Examples\\LE_item_has_submenu_image\\LE_item_has_submenu_image.html");
  EXPECT_EQ(viewer.caption, "Live Example for property: \"\"Has Submenu\" Image\"");
  EXPECT_TRUE(viewer.isOpen && state.isLiveExamplesWindowLoaded);
}

TEST_F(ItemSheet, ReplicatingCommitsThenCopiesNormal) {
  sheet.EnterCell(0, column::MouseClick);
  sheet.type("lost to Normal");
  sheet.click(sheet.btnReplicate);
  EXPECT_THAT(changes, ElementsAre(0, 0));
  EXPECT_EQ(text(0, column::MouseClick), item.ItemName1.str());
  EXPECT_EQ(sheet.Shown(0, column::MouseOver), item.ItemName1);
  EXPECT_TRUE(sheet.Editing() && sheet.cursorColumn() == column::Normal);
}

TEST_F(ItemSheet, FontThatIsNotThereShowsTheLastAndStaysWithTheElement) {
  item.FontFamily1 = "Nowhere";
  PutValuesToPropertyControl(item, sheet);
  EXPECT_EQ(edit(8, column::Normal, "Nowhere"), "arial");
  EXPECT_THAT(changes, IsEmpty());
  sheet.EnterCell(8, column::Normal);
  EXPECT_THAT(sheet.lstSortedList.list,
              ElementsAre("arial", "cursive", "fantasy", "monospace", "sans-serif", "serif", "Zapf"));
  sheet.choose(sheet.lstSortedList, {6});  // closed yet
  sheet.txtEntry_Click();
  sheet.choose(sheet.lstSortedList, {6});
  EXPECT_FALSE(sheet.lstSortedList.visible);
  EXPECT_THAT(changes, IsEmpty());  // until it is left
  sheet.LeaveCell();
  EXPECT_EQ(text(8, column::Normal), "Zapf");
}

TEST_F(ItemSheet, ButtonsPutWhatIsChosenIntoTheEntry) {
  sheet.EnterCell(2, column::Normal);
  sheet.click(sheet.btnColour);  // not of this row
  sheet.click(sheet.btnFile);    // cancelled
  EXPECT_EQ(sheet.txtEntry.text, "(no_image)");
  system.file = "C:\\a.gif";
  sheet.click(sheet.btnFile);
  EXPECT_EQ(system.title, "Choose Image File");
  sheet.LeaveCell();
  EXPECT_EQ(text(2, column::Normal), "C:\\a.gif");

  sheet.EnterCell(18, column::MouseOver);
  system.colour = 0x0000FFU;
  sheet.click(sheet.btnColour);
  EXPECT_EQ(sheet.txtEntry.text, "#FF0000");
  EXPECT_EQ(sheet.swatch(18, column::MouseOver), (Rgb{255, 0, 0}));
  EXPECT_NE(text(18, column::MouseOver), "#FF0000");
  sheet.LeaveCell();

  system.inForm = [](Form& form) { form.click(*form.find("cmdOk")); };
  sheet.EnterCell(9, column::Normal);
  EXPECT_TRUE(sheet.entryIsReadOnly());
  sheet.type(" 7px ");
  sheet.click(sheet.btnFontSize);
  EXPECT_EQ(sheet.txtEntry.text, "7px");
  sheet.LeaveCell();
  EXPECT_THAT(changes, ElementsAre(2, 18, 9));
}

TEST_F(ItemSheet, WhatIsTakenBackWasNever) {
  item.ItemImage1 = " outer blanks.gif ";
  PutValuesToPropertyControl(item, sheet);
  sheet.EnterCell(2, column::Normal);
  sheet.type("other.gif");
  sheet.TakeBack();
  EXPECT_FALSE(sheet.Editing() || sheet.txtEntry.visible);
  EXPECT_EQ(text(2, column::Normal), " outer blanks.gif ");
  EXPECT_THAT(changes, IsEmpty());
}

TEST_F(ItemSheet, TextOutlivesScrollingAndRefreshing) {
  sheet.EnterCell(1, column::Normal);
  sheet.click(sheet.btnCombo);
  sheet.Grid_Scroll(false);
  EXPECT_FALSE(sheet.txtEntry.visible || sheet.lstList.visible || sheet.btnReplicate.visible);
  sheet.LeaveCell();
  sheet.EnterCell(0, column::Normal);
  sheet.type("half ty");
  sheet.Grid_Scroll(false);
  sheet.RefreshPropertyValues();
  sheet.Grid_Scroll(true);
  EXPECT_TRUE(sheet.txtEntry.visible);
  sheet.LeaveCell();
  EXPECT_EQ(text(0, column::Normal), "half ty");
}

}  // namespace
}  // namespace nimbrel
