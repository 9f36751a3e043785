#include "desktop/sheet/sheet_view.h"

#include <QApplication>
#include <QSignalSpy>
#include <QTest>
#include <gmock/gmock.h>

#include "desktop/display_text.h"
#include "desktop/run_action.h"
#include "model/element.h"
#include "platform/file_error.h"
#include "properties/element_values.h"
#include "support/scripted_ports.h"

namespace nimbrel {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr int Normal = column::Normal;
constexpr int MouseOver = column::MouseOver;
constexpr int MouseClick = column::MouseClick;

/// Chooses red.
struct PaintingAuthor : ScriptedAsker {
  std::optional<std::uint32_t> chooseColour(std::uint32_t) override { return 0x0000FFU; }
};

/// The sheet of a new element, in a window that is too low for all of its rows.
template <class Element>
class SheetOnScreen : public testing::Test {
 protected:
  explicit SheetOnScreen(const SheetTable& table)
      : sheet(table, {author, system, fonts, menuFolder, tmpFontSize}, viewer),
        view(sheet, [this](const char*) {
          if (drawIcon) drawIcon();
          return QIcon();
        }) {
    SetDefaultValues(element);
    PutValuesToPropertyControl(element, sheet);
    sheet.Change = [this](int ordinal) { changes.push_back(ordinal); };
    view.resize(640, 420);
    view.show();
    view.activateWindow();
    view.refresh();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&view));
  }

  template <class Widget = QWidget>
  Widget& find(const char* name) {
    return *view.template findChild<Widget*>(name);
  }
  SheetGrid& grid() { return find<SheetGrid>("Grid"); }
  QLineEdit& entry() { return find<QLineEdit>("txtEntry"); }
  QListWidget& entries() { return find<QListWidget>("entries"); }

  void click(int row, int col) {
    grid().goTo({row, col});
    QTest::mouseClick(grid().viewport(), Qt::LeftButton, {}, grid().placeOf({row, col}).center());
  }
  void clickButton(const char* name) { QTest::mouseClick(&find(name), Qt::LeftButton); }
  void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
    QTest::keyClick(QApplication::focusWidget(), key, modifiers);
  }
  /// Presses keys and expects a certain cell to be open after each.
  void pressAndExpect(std::initializer_list<std::pair<Qt::Key, CellPlace>> moves) {
    for (const auto& [key, place] : moves) {
      press(key);
      EXPECT_TRUE(isOpen(place.row, place.column)) << place.row << ", " << place.column;
    }
  }
  /// The first key may open the entry, which gets the others.
  void type(std::string_view text) {
    for (const char key : text) QTest::keyClick(QApplication::focusWidget(), key);
  }
  void scrollTo(int row) { grid().scrollTo(grid().model()->index(row, Normal)); }
  bool isOpen(int row, int col) const {
    return sheet.Editing() && CellPlace{sheet.cursorRow(), sheet.cursorColumn()} == CellPlace{row, col};
  }
  QString displayed(int row, int col, int role = Qt::DisplayRole) {
    return grid().model()->index(row, col).data(role).toString();
  }

  ScriptedPorts system;
  PaintingAuthor author;
  const std::vector<std::string> fonts{"Zapf Chancery Medium Italic"};
  const std::string menuFolder;
  std::string tmpFontSize;
  frmLiveExamples viewer{{}};
  Element element;
  PropertySheet sheet;
  std::function<void()> drawIcon;
  SheetView view;
  std::vector<int> changes;
};

struct ItemOnScreen : SheetOnScreen<ItemObj> {
  ItemOnScreen() : SheetOnScreen(itemTable()) {}
};
struct MenuOnScreen : SheetOnScreen<MenuObj> {
  MenuOnScreen() : SheetOnScreen(menuTable()) {}
};

TEST_F(ItemOnScreen, ClickTypeAndEnterChangeTheCellAndGoDown) {
  const QSignalSpy finished(&view, &SheetView::actionFinished);
  click(0, MouseOver);
  type("Home");
  pressAndExpect({{Qt::Key_Return, {1, MouseOver}}});
  EXPECT_THAT(changes, ElementsAre(0));
  EXPECT_EQ(displayed(0, MouseOver), "Home");
  EXPECT_EQ(finished.count(), 1 + 4 + 1);
  click(1, Normal);  // one click opens another cell
  EXPECT_TRUE(isOpen(1, Normal) && entry().isVisible());
}

TEST_F(ItemOnScreen, TabAndArrowsFindTheUsableCells) {
  click(4, MouseClick);
  pressAndExpect({{Qt::Key_Tab, {5, MouseOver}},
                  {Qt::Key_Backtab, {4, MouseClick}},
                  {Qt::Key_Down, {5, MouseOver}},
                  {Qt::Key_Down, {6, MouseOver}},
                  {Qt::Key_Down, {7, MouseClick}}});
  click(23, Normal);
  EXPECT_TRUE(isOpen(23, MouseClick));
  press(Qt::Key_Tab);  // leaves the table
  EXPECT_FALSE(sheet.Editing() || grid().hasFocus());
}

TEST_F(ItemOnScreen, EscapeCancelsAndTypingOpensTheCurrentCell) {
  click(0, Normal);
  type("never");
  // Keys that the entry ignores once bounced between entry and table without end.
  for (const auto key : {Qt::Key_F2, Qt::Key_Insert, Qt::Key_CapsLock}) press(key);
  EXPECT_TRUE(isOpen(0, Normal) && entry().hasFocus());
  press(Qt::Key_Escape);
  EXPECT_FALSE(sheet.Editing() || entry().isVisible());
  EXPECT_THAT(changes, IsEmpty());
  press(Qt::Key_Right);
  type("x");
  EXPECT_TRUE(isOpen(0, MouseOver));
  EXPECT_EQ(sheet.txtEntry.text, "x");
}

TEST_F(ItemOnScreen, ListByKeyboard) {
  constexpr int bold = 10;
  EXPECT_EQ(displayed(bold, Normal, Qt::AccessibleTextRole), "Item Text Bold, Normal: no");
  click(bold, Normal);
  press(Qt::Key_Space);
  ASSERT_TRUE(entries().isVisible());
  EXPECT_EQ(entries().currentItem()->text(), "no");
  EXPECT_EQ(entries().accessibleName(), "Item Text Bold, Normal");
  QTest::keyClick(&entries(), Qt::Key_Escape);
  EXPECT_FALSE(entries().isVisible() || sheet.lstList.visible);
  press(Qt::Key_F4);
  QTest::keyClick(&entries(), entries().currentRow() == 0 ? Qt::Key_Down : Qt::Key_Up);
  QTest::keyClick(&entries(), Qt::Key_Return);
  EXPECT_FALSE(entries().isVisible());
  EXPECT_EQ(displayed(bold, Normal, Qt::AccessibleTextRole), "Item Text Bold, Normal: yes");
  press(Qt::Key_F4);
  QTest::keyClick(&entries(), Qt::Key_Tab);
  EXPECT_TRUE(isOpen(bold, MouseOver) && entry().hasFocus());
  EXPECT_THAT(changes, ElementsAre(bold));
  type("y");  // while the list is closed
  EXPECT_EQ(sheet.txtEntry.text, "yes");
}

TEST_F(ItemOnScreen, ListByMouse) {
  const QString widest = "Zapf Chancery Medium Italic";
  click(8, MouseClick);
  clickButton("btnCombo");
  const auto& popup = *entries().window();
  EXPECT_TRUE(popup.screen()->availableGeometry().contains(popup.geometry()));
  EXPECT_GE(entries().viewport()->width(), entries().fontMetrics().horizontalAdvance(widest));
  auto* last = entries().item(entries().count() - 1);
  entries().scrollToItem(last);
  QTest::mouseClick(entries().viewport(), Qt::LeftButton, {}, entries().visualItemRect(last).center());
  EXPECT_EQ(entry().text(), widest);
  QTest::mouseClick(&entry(), Qt::LeftButton);
  EXPECT_TRUE(entries().isVisible());
  QTest::keyClick(&entries(), Qt::Key_F4);
}

TEST_F(ItemOnScreen, ButtonsOpenTheChoosersOfTheirRows) {
  constexpr int image = 2;
  const auto path = toDisplayPath("\\site\\a.gif");
  author.files.emplace_back("\\site\\a.gif");
  click(image, Normal);
  clickButton("btnFile");
  EXPECT_EQ(entry().text(), path);
  press(Qt::Key_Tab);
  EXPECT_EQ(displayed(image, Normal), path);
  QTest::keyClicks(&entry(), path);
  press(Qt::Key_Tab);
  EXPECT_EQ(sheet.Shown(image, MouseOver), "\\site\\a.gif");

  constexpr int colour = 13;
  click(colour, Normal);
  clickButton("btnColour");
  EXPECT_EQ(entry().text(), "#FF0000");
  const auto cell = grid().placeOf({colour, Normal});
  const auto picture = grid().viewport()->grab().toImage();
  EXPECT_EQ(picture.pixelColor(cell.left() + cell.height() / 2, cell.center().y()), Qt::red);
  EXPECT_LT(cell.left() + cell.height() / 2, entry().mapTo(grid().viewport(), QPoint()).x());

  author.inForm = [this](Form& form) {
    view.resize(640, 400);  // must not close the cell that waits for the form
    form.click(*form.find("optCSSSizing"));
    form.enter(*form.find("txtCSSSize"), "12");
    form.click(*form.find("cmdOk"));
  };
  click(9, Normal);
  press(Qt::Key_Down, Qt::AltModifier);
  EXPECT_TRUE(entry().text().startsWith("12") && entry().hasFocus());
}

TEST_F(ItemOnScreen, ReplicatesByMouseAndKeyboard) {
  click(0, Normal);
  type("same");
  clickButton("btnReplicate");
  EXPECT_EQ(displayed(0, MouseClick), "same");
  EXPECT_TRUE(isOpen(0, Normal) && entry().hasFocus());
  // From another state it goes to the first one, and Enter goes down from there.
  click(0, MouseOver);
  press(Qt::Key_R, Qt::ControlModifier);
  EXPECT_EQ(grid().current(), (CellPlace{0, Normal}));
  type("once");
  press(Qt::Key_R, Qt::ControlModifier);
  pressAndExpect({{Qt::Key_Tab, {0, MouseOver}}});
  EXPECT_FALSE(entry().isUndoAvailable());
  click(0, Normal);
  pressAndExpect({{Qt::Key_Return, {1, Normal}}});
}

TEST_F(ItemOnScreen, OpenCellOutlivesScrolling) {
  click(0, Normal);
  type("half");
  const int top = entry().y();
  scrollTo(23);
  EXPECT_FALSE(entry().isVisible());
  scrollTo(0);
  EXPECT_TRUE(entry().isVisible() && entry().hasFocus());
  EXPECT_EQ(entry().y(), top);
  scrollTo(23);
  type("way");
  EXPECT_EQ(entry().text(), "halfway");
  EXPECT_EQ(entry().y(), top);
}

TEST_F(ItemOnScreen, TypingGoesOnAfterACommandAndAfterResizing) {
  click(0, Normal);
  type("half");
  sheet.LeaveCell();  // as saving does
  view.refresh();
  EXPECT_FALSE(entry().isVisible());
  type("way");
  view.resize(600, 400);
  EXPECT_THAT(changes, ElementsAre(0, 0));
  type("x");
  EXPECT_EQ(sheet.txtEntry.text, "halfwayx");
  sheet.LeaveCell();
  PutValuesToPropertyControl(element, sheet);  // another element
  view.refresh();
  type("new");
  EXPECT_EQ(sheet.txtEntry.text, "new");
}

TEST_F(ItemOnScreen, InputMethodsOpenACellAndTextsMayBeLong) {
  grid().setFocus();
  EXPECT_TRUE(grid().testAttribute(Qt::WA_InputMethodEnabled));
  QInputMethodEvent composed;
  const QString text(40'000, 'x');
  composed.setCommitString(text);
  QApplication::sendEvent(&grid(), &composed);
  EXPECT_TRUE(isOpen(0, Normal));
  EXPECT_EQ(toDisplay(sheet.txtEntry.text), text);
}

TEST_F(ItemOnScreen, HelpOfTheRow) {
  QSignalSpy requested(&view, &SheetView::helpRequested);
  click(2, MouseOver);
  press(Qt::Key_F1);
  ASSERT_EQ(requested.count(), 1);
  EXPECT_EQ(requested.first().first().toInt(), 1340);
  press(Qt::Key_Tab, Qt::ControlModifier);
  EXPECT_TRUE(find("lblMoreHelpLink").hasFocus());
  press(Qt::Key_Return);
  EXPECT_THAT(system.topics, ElementsAre(1340));
  press(Qt::Key_F6);
  EXPECT_TRUE(entry().hasFocus());
  QTest::mouseClick(&find("lblExamplesLink"), Qt::LeftButton);
  EXPECT_TRUE(viewer.isOpen && entry().hasFocus());
  press(Qt::Key_F6);
  sheet.LeaveCell();
  view.refresh();
  EXPECT_TRUE(grid().hasFocus());  // the links are hidden
}

TEST_F(ItemOnScreen, RefreshTouchesOnlyWhatDiffersAndScrollsToTheTop) {
  scrollTo(23);
  const QSignalSpy touched(grid().model(), &QAbstractItemModel::dataChanged);
  sheet.SetProperty(7, MouseOver, 12.F);
  sheet.RefreshPropertyValues();
  view.refresh();
  view.refresh();
  ASSERT_EQ(touched.count(), 1);
  EXPECT_EQ(touched.first().first().toModelIndex(), grid().model()->index(7, MouseOver));
  EXPECT_TRUE(grid().isCellVisible({0, Normal}));
}

TEST_F(ItemOnScreen, ErrorsOfActionsAndOfRefreshesAreReported) {
  std::vector<std::string> errors;
  setErrorReporter([&](const QString& text) {
    errors.push_back(text.toStdString() + (entry().isVisible() ? ", cell open" : ", cell closed"));
    throw std::runtime_error("no reporter");
  });
  sheet.Change = [](int) { throw FileError("\\a.nbr", "disk full"); };
  click(0, Normal);
  type("kept");
  press(Qt::Key_Return);
  EXPECT_EQ(displayed(0, Normal), "kept");
  drawIcon = [] { throw std::runtime_error("no icon"); };
  click(2, Normal);
  EXPECT_THAT(errors, ElementsAre("/a.nbr: disk full, cell closed", "no icon, cell open"));
  setErrorReporter(nullptr);
  click(2, Normal);
  EXPECT_TRUE(entry().isVisible());
}

TEST_F(MenuOnScreen, KeysSkipHeadingsAndTheSplitterMovesByMouseAndKeyboard) {
  auto& bar = find("imgSplitter");
  const int top = bar.y();
  bar.setFocus();
  pressAndExpect({{Qt::Key_Backtab, {1, Normal}}});
  click(8, Normal);
  pressAndExpect({{Qt::Key_Backtab, {7, Normal}}, {Qt::Key_Return, {9, Normal}}, {Qt::Key_Up, {7, Normal}}});
  QTest::mousePress(&bar, Qt::LeftButton, {}, {10, 1});
  EXPECT_FALSE(sheet.Editing());
  QTest::mouseMove(&bar, {10, -79});
  QTest::mouseRelease(&bar, Qt::LeftButton, {}, {10, -79});
  EXPECT_NEAR(bar.y(), top - 80, 2);
  EXPECT_EQ(grid().geometry().bottom() + 1, bar.y());
  const int helpHeight = find("HelpPanel").height();
  QTest::keyClick(&bar, Qt::Key_Down);
  EXPECT_EQ(find("HelpPanel").height(), helpHeight - 10);
}

}  // namespace
}  // namespace nimbrel

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QApplication application(argc, argv);
  testing::InitGoogleMock(&argc, argv);
  return RUN_ALL_TESTS();
}
