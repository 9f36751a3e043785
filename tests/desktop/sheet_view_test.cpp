#include "desktop/sheet/sheet_view.h"

#include <QSignalSpy>
#include <gmock/gmock.h>
#include <stdexcept>

#include "desktop/display_text.h"
#include "sheet_on_screen.h"

namespace nimbrel {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr int Normal = column::Normal;
constexpr int MouseOver = column::MouseOver;
constexpr int MouseClick = column::MouseClick;

struct ItemOnScreen : SheetOnScreen<ItemObj> {
  ItemOnScreen() : SheetOnScreen(itemTable()) {}
};

struct MenuOnScreen : SheetOnScreen<MenuObj> {
  MenuOnScreen() : SheetOnScreen(menuTable()) {}
};

TEST_F(ItemOnScreen, ClickTypeEnterChangesAndGoesDown) {
  const QSignalSpy acted(&view, &SheetView::acted);
  click(0, MouseOver);
  EXPECT_TRUE(isOpen(0, MouseOver));
  type("Home");
  EXPECT_THAT(changes, IsEmpty());
  press(Qt::Key_Return);
  EXPECT_THAT(changes, ElementsAre(0));
  EXPECT_EQ(grid().model()->index(0, MouseOver).data().toString(), "Home");
  EXPECT_TRUE(isOpen(1, MouseOver));
  EXPECT_EQ(acted.count(), 1 + 4 + 1);
  click(1, Normal);  // another cell is one click away
  EXPECT_TRUE(isOpen(1, Normal) && entry().isVisible());
}

TEST_F(ItemOnScreen, TabulatorAndEnterFindTheCellsThatCanBeUsed) {
  click(4, MouseClick);
  press(Qt::Key_Tab);
  EXPECT_TRUE(isOpen(5, MouseOver));
  press(Qt::Key_Tab);
  EXPECT_TRUE(isOpen(6, MouseOver));
  press(Qt::Key_Backtab);
  press(Qt::Key_Backtab);
  EXPECT_TRUE(isOpen(4, MouseClick));
  for (const int row : {5, 6, 7}) {
    press(Qt::Key_Down);
    EXPECT_TRUE(isOpen(row, row == 7 ? MouseClick : MouseOver)) << row;
  }
  click(23, Normal);
  EXPECT_TRUE(isOpen(23, MouseClick));
  press(Qt::Key_Tab);  // out of the table
  EXPECT_FALSE(sheet.Editing() || grid().hasFocus());
}

TEST_F(MenuOnScreen, TabulatorPassesHeadings) {
  find("imgSplitter").setFocus();
  press(Qt::Key_Backtab);
  EXPECT_TRUE(isOpen(1, Normal));
  click(8, Normal);
  EXPECT_TRUE(isOpen(9, Normal));
  press(Qt::Key_Backtab);
  EXPECT_TRUE(isOpen(7, Normal));
  press(Qt::Key_Return);
  EXPECT_TRUE(isOpen(9, Normal));
  press(Qt::Key_Up);
  EXPECT_TRUE(isOpen(7, Normal));
}

TEST_F(ItemOnScreen, EscapeTakesBackAndTypingBeginsAnew) {
  const auto old = textOf(0, Normal);
  click(0, Normal);
  type("never");
  press(Qt::Key_Escape);
  EXPECT_FALSE(sheet.Editing() || entry().isVisible());
  EXPECT_THAT(changes, IsEmpty());
  EXPECT_EQ(textOf(0, Normal), old);
  EXPECT_TRUE(grid().hasFocus());
  press(Qt::Key_Right);
  type("x");
  EXPECT_TRUE(isOpen(0, MouseOver));
  EXPECT_EQ(sheet.txtEntry.text, "x");
}

TEST_F(ItemOnScreen, ListByKeyboard) {
  constexpr int bold = 10;
  click(bold, Normal);
  ASSERT_EQ(entry().text(), "no");
  press(Qt::Key_Space);
  ASSERT_TRUE(entries().isVisible());
  EXPECT_EQ(entries().currentItem()->text(), "no");
  QTest::keyClick(&entries(), Qt::Key_Escape);
  EXPECT_FALSE(entries().isVisible() || sheet.lstList.visible);
  EXPECT_TRUE(isOpen(bold, Normal));

  press(Qt::Key_F4);
  QTest::keyClick(&entries(), entries().currentRow() == 0 ? Qt::Key_Down : Qt::Key_Up);
  QTest::keyClick(&entries(), Qt::Key_Return);
  EXPECT_FALSE(entries().isVisible());
  EXPECT_EQ(entry().text(), "yes");
  EXPECT_THAT(changes, IsEmpty());
  press(Qt::Key_Tab);
  EXPECT_THAT(changes, ElementsAre(bold));

  press(Qt::Key_Backtab);
  press(Qt::Key_F4);
  EXPECT_EQ(entries().accessibleName(), entry().accessibleName());
  QTest::keyClick(&entries(), Qt::Key_Tab);  // takes and goes on
  EXPECT_TRUE(isOpen(bold, MouseOver) && entry().hasFocus());

  type("y");  // without opening it
  EXPECT_EQ(sheet.txtEntry.text, "yes");
}

TEST_F(ItemOnScreen, ListByMouse) {
  constexpr int font = 8;
  click(font, MouseClick);
  clickButton("btnCombo");
  ASSERT_TRUE(entries().isVisible());
  const auto& popup = *entries().window();
  const auto screen = popup.screen()->availableGeometry();
  EXPECT_TRUE(screen.contains(popup.geometry()));
  EXPECT_GE(entries().viewport()->width(),
            entries().fontMetrics().horizontalAdvance("Zapf Chancery Medium Italic"));
  auto* last = entries().item(entries().count() - 1);
  entries().scrollToItem(last);
  QTest::mouseClick(entries().viewport(), Qt::LeftButton, {}, entries().visualItemRect(last).center());
  EXPECT_EQ(entry().text(), "Zapf Chancery Medium Italic");
  QTest::mouseClick(&entry(), Qt::LeftButton);  // opens it as well
  EXPECT_TRUE(entries().isVisible());
  QTest::keyClick(&entries(), Qt::Key_F4);
  click(0, Normal);
  EXPECT_THAT(changes, ElementsAre(font));
}

TEST_F(ItemOnScreen, ColourButtonPaintsTheSwatchAtOnce) {
  constexpr int colour = 13;
  click(colour, Normal);
  clickButton("btnColour");
  EXPECT_EQ(entry().text(), "#FF0000");
  const auto cell = grid().placeOf({colour, Normal});
  const auto picture = grid().viewport()->grab().toImage();
  EXPECT_EQ(picture.pixelColor(cell.left() + cell.height() / 2, cell.center().y()), Qt::red);
  EXPECT_LT(cell.left() + cell.height() / 2, entry().x());
  EXPECT_THAT(changes, IsEmpty());
}

TEST_F(ItemOnScreen, FilesAreShownAndTypedAsTheSystemHasThem) {
  constexpr int image = 2;
  author.file = "\\site\\a.gif";
  click(image, Normal);
  clickButton("btnFile");
  EXPECT_EQ(author.dialogs.size(), 1U);
  EXPECT_EQ(entry().text(), toDisplayPath("\\site\\a.gif"));
  press(Qt::Key_Tab);
  EXPECT_EQ(textOf(image, Normal), "\\site\\a.gif");
  EXPECT_EQ(grid().model()->index(image, Normal).data().toString(), toDisplayPath("\\site\\a.gif"));
  QTest::keyClicks(&entry(), toDisplayPath("\\site\\b.gif"));
  press(Qt::Key_Tab);
  EXPECT_EQ(textOf(image, MouseOver), "\\site\\b.gif");
}

TEST_F(ItemOnScreen, FontSizeComesFromItsForm) {
  author.inForm = [](Form& form) {
    form.click(*form.find("optCSSSizing"));
    form.enter(*form.find("txtCSSSize"), "12");
    form.click(*form.find("cmdOk"));
  };
  click(9, Normal);
  type("9");  // cannot be typed
  EXPECT_EQ(sheet.txtEntry.text, textOf(9, Normal));
  press(Qt::Key_Down, Qt::AltModifier);
  EXPECT_THAT(author.forms, ElementsAre("frmFontSize"));
  EXPECT_TRUE(entry().text().startsWith("12"));
  EXPECT_TRUE(entry().hasFocus());
}

TEST_F(ItemOnScreen, ReplicatesByMouseAndKeyboard) {
  click(0, Normal);
  type("same");
  clickButton("btnReplicate");
  EXPECT_EQ(textOf(0, MouseClick), "same");
  EXPECT_TRUE(isOpen(0, Normal) && entry().hasFocus());
  type("again");
  press(Qt::Key_R, Qt::ControlModifier);
  EXPECT_EQ(textOf(0, MouseOver), "again");
  click(22, MouseClick);
  EXPECT_FALSE(find("btnReplicate").isVisible());
  // From another state it goes to the first, and from there down; what was undone stays with its cell.
  click(0, MouseOver);
  press(Qt::Key_R, Qt::ControlModifier);
  EXPECT_TRUE(isOpen(0, Normal) && grid().current() == (CellPlace{0, Normal}));
  type("once");
  press(Qt::Key_R, Qt::ControlModifier);
  press(Qt::Key_Tab);
  EXPECT_FALSE(entry().isUndoAvailable());
  click(0, Normal);
  press(Qt::Key_Return);
  EXPECT_TRUE(isOpen(1, Normal));
}

TEST_F(ItemOnScreen, OpenCellComesBackAfterScrolling) {
  click(0, Normal);
  type("half");
  const int top = entry().y();
  turnWheel(30);
  EXPECT_FALSE(entry().isVisible());
  EXPECT_TRUE(isOpen(0, Normal));
  turnWheel(-30);
  EXPECT_TRUE(entry().isVisible() && entry().hasFocus());
  EXPECT_EQ(entry().y(), top);
  turnWheel(30);
  type("way");
  EXPECT_EQ(entry().text(), "halfway");
  EXPECT_EQ(entry().y(), top);
  press(Qt::Key_Tab);
  EXPECT_EQ(textOf(0, Normal), "halfway");
}

TEST_F(ItemOnScreen, TypingGoesOnAfterACommand) {
  click(0, Normal);
  type("half");
  sheet.LeaveCell();  // as saving does
  view.refresh();
  EXPECT_THAT(changes, ElementsAre(0));
  EXPECT_FALSE(entry().isVisible());
  type("way");
  EXPECT_EQ(sheet.txtEntry.text, "halfway");
  sheet.LeaveCell();
  PutValuesToPropertyControl(element, sheet);  // another element
  view.refresh();
  type("new");
  EXPECT_EQ(sheet.txtEntry.text, "new");
}

/// They once went round between entry and table without end.
TEST_F(ItemOnScreen, KeysThatTheEntryHasNoUseForGoOn) {
  click(0, Normal);
  for (const auto key : {Qt::Key_F2, Qt::Key_Insert, Qt::Key_CapsLock}) press(key);
  press(Qt::Key_Return, Qt::ShiftModifier);
  press(Qt::Key_Q, Qt::ControlModifier);
  EXPECT_TRUE(isOpen(0, Normal) && entry().hasFocus());
}

TEST_F(ItemOnScreen, ResizingTakesNothingAway) {
  click(0, Normal);
  type("half");
  view.resize(600, 400);
  EXPECT_EQ(textOf(0, Normal), "half");
  type("way");
  EXPECT_EQ(sheet.txtEntry.text, "halfway");
  author.inForm = [this](Form& form) {
    view.resize(640, 420);  // while the form waits
    form.click(*form.find("optCSSSizing"));
    form.enter(*form.find("txtCSSSize"), "77");
    form.click(*form.find("cmdOk"));
  };
  click(9, Normal);
  clickButton("btnFontSize");
  press(Qt::Key_Tab);
  EXPECT_THAT(textOf(9, Normal), testing::StartsWith("77"));
}

TEST_F(ItemOnScreen, LongTextsStayWhole) {
  const std::string text(40'000, 'x');
  element.ItemName1 = text;
  PutValuesToPropertyControl(element, sheet);
  view.refresh();
  click(0, Normal);
  press(Qt::Key_End);
  press(Qt::Key_Backspace);
  press(Qt::Key_Tab);
  EXPECT_EQ(textOf(0, Normal), text.substr(1));
}

TEST_F(ItemOnScreen, InputMethodsBeginAnEditAndLoseNothing) {
  click(0, Normal);
  press(Qt::Key_Escape);
  EXPECT_TRUE(grid().testAttribute(Qt::WA_InputMethodEnabled));
  QInputMethodEvent composed;
  composed.setCommitString("Zuhause");
  QApplication::sendEvent(&grid(), &composed);
  EXPECT_TRUE(isOpen(0, Normal));
  EXPECT_EQ(sheet.txtEntry.text, "Zuhause");
}

TEST_F(ItemOnScreen, HelpOfTheRow) {
  QSignalSpy wanted(&view, &SheetView::helpWanted);
  click(2, MouseOver);
  press(Qt::Key_F1);
  ASSERT_EQ(wanted.count(), 1);
  EXPECT_EQ(wanted.first().first().toInt(), 1340);
  EXPECT_EQ(find<QLabel>("HelpLabel1").text(), "Item Image");

  press(Qt::Key_Tab, Qt::ControlModifier);
  EXPECT_TRUE(find("lblMoreHelpLink").hasFocus());
  press(Qt::Key_Return);
  EXPECT_THAT(system.topics, ElementsAre(1340));
  EXPECT_TRUE(isOpen(2, MouseOver));
  press(Qt::Key_F6);
  EXPECT_TRUE(entry().hasFocus());
  QTest::mouseClick(&find("lblExamplesLink"), Qt::LeftButton);
  EXPECT_TRUE(viewer.isOpen && entry().hasFocus());
  press(Qt::Key_F6);
  sheet.LeaveCell();
  view.refresh();
  EXPECT_TRUE(grid().hasFocus());  // the links are gone
}

TEST_F(ItemOnScreen, RefreshTouchesWhatDiffersAndGoesToTheTop) {
  turnWheel(30);
  const QSignalSpy touched(grid().model(), &QAbstractItemModel::dataChanged);
  sheet.SetProperty(7, MouseOver, 12.F);
  sheet.RefreshPropertyValues();
  view.refresh();
  view.refresh();
  ASSERT_EQ(touched.count(), 1);
  EXPECT_EQ(touched.first().first().toModelIndex(), grid().model()->index(7, MouseOver));
  EXPECT_TRUE(grid().isInSight({0, Normal}));
}

TEST_F(ItemOnScreen, SaysCellsToThoseWhoDoNotSeeThem) {
  const auto said = [&](int row, int col) {
    return grid().model()->index(row, col).data(Qt::AccessibleTextRole).toString();
  };
  EXPECT_EQ(said(6, MouseOver), "Item Cursor, Mouse Over: hand");
  EXPECT_EQ(said(6, MouseClick), "");
  click(6, MouseOver);
  EXPECT_EQ(entry().accessibleName(), "Item Cursor, Mouse Over");
  type("wait");
  EXPECT_EQ(said(6, MouseOver), "Item Cursor, Mouse Over: wait");
}

TEST_F(ItemOnScreen, AFailureIsHandedOnWithTheSheetAsItStands) {
  sheet.Change = [](int) { throw std::runtime_error("disk"); };
  click(0, Normal);
  type("kept");
  EXPECT_THROW(press(Qt::Key_Return), std::runtime_error);
  EXPECT_FALSE(entry().isVisible());
  EXPECT_EQ(grid().model()->index(0, Normal).data().toString(), "kept");
}

TEST_F(MenuOnScreen, SplitterMovesByMouseAndKeyboard) {
  auto& bar = find("imgSplitter");
  const int top = bar.y();
  click(1, Normal);
  QTest::mousePress(&bar, Qt::LeftButton, {}, {10, 1});
  EXPECT_FALSE(sheet.Editing());
  QTest::mouseMove(&bar, {10, -79});
  QTest::mouseRelease(&bar, Qt::LeftButton);
  EXPECT_NEAR(bar.y(), top - 80, 2);
  EXPECT_EQ(grid().geometry().bottom() + 1, bar.y());
  const int helpHeight = find("HelpPanel").height();
  QTest::keyClick(&bar, Qt::Key_Down);
  EXPECT_EQ(find("HelpPanel").height(), helpHeight - 10);
}

}  // namespace
}  // namespace nimbrel
