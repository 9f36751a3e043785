#include <QAbstractItemModelTester>
#include <QAccessible>
#include <QClipboard>
#include <QComboBox>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTabBar>
#include <QTest>
#include <QToolBar>
#include <QWebEnginePage>
#include <QWebEngineView>
#include <gmock/gmock.h>

#include "desktop/browser_view.h"
#include "desktop/display_text.h"
#include "desktop_run.h"

namespace nimbrel {
namespace {

using testing::HasSubstr;

constexpr const char* itemsInPage =
    "(function(){var n=0;document.querySelectorAll('*').forEach(function(e){"
    "if(e.shadowRoot)n+=e.shadowRoot.querySelectorAll('[role=menuitem]').length});return n})()";

/// What the keyboard reaches and a screen reader would have no name for.
std::string namelessControls(const QWidget& window) {
  std::string names;
  for (auto* widget : window.findChildren<QWidget*>()) {
    const bool isReached = (widget->focusPolicy() & Qt::TabFocus) != 0 && widget->focusProxy() == nullptr;
    const bool isPartOfBrowser = qobject_cast<QWebEngineView*>(widget->parentWidget()) != nullptr;
    if (!isReached || isPartOfBrowser || widget->window() != &window) continue;
    auto* accessible = QAccessible::queryAccessibleInterface(widget);
    if (accessible->text(QAccessible::Name).isEmpty()) {
      names += widget->objectName().toStdString() + '/' + widget->metaObject()->className() + ' ';
    }
  }
  return names;
}

class Desktop : public testing::Test {
 protected:
  ~Desktop() override { EXPECT_TRUE(run.allDone()); }

  void pressTool(const char* key) {
    auto* bar = run.view().findChild<QToolBar*>("tbToolBar");
    auto* button = bar->widgetForAction(run.view().commands().button(key));
    QTest::mouseClick(button, Qt::LeftButton);
  }
  Node* selected() { return run.main().selected; }
  QString titleOf(Node* node) { return node == nullptr ? "" : toDisplay(node->Text); }

  DesktopRun run;
};

TEST_F(Desktop, FromAnEmptyStartToALinkedMenu) {
  run.start();
  auto& view = run.view();
  EXPECT_EQ(view.windowTitle(), "Nimbrel ver 2.0 - Untitled");
  run.select("I1");
  pressTool("Add Item");
  ASSERT_NE(selected(), nullptr);
  EXPECT_EQ(selected()->Key, "I4");

  // The name is typed into the sheet, and the tree follows.
  auto* grid = view.sheet(Kind::Item).findChild<QAbstractItemView*>();
  QTest::mouseClick(grid->viewport(), Qt::LeftButton, {},
                    grid->visualRect(grid->model()->index(0, 1)).center());
  auto* entry = view.sheet(Kind::Item).findChild<QLineEdit*>();
  ASSERT_TRUE(entry->isVisible());
  entry->selectAll();
  QApplication::clipboard()->setText(QString::fromUtf8("Über меню"));
  QTest::keySequence(entry, QKeySequence::Paste);
  QTest::keyClick(entry, Qt::Key_Return);
  EXPECT_EQ(titleOf(selected()), QString::fromUtf8("Über меню - Item4 - Item4"));
  EXPECT_EQ(view.tree().currentIndex().data().toString(), titleOf(selected()));
  EXPECT_TRUE(run.main().state.IsDirty);

  // The preview shows it in the embedded browser, and its files go.
  QTest::keyClick(&view, Qt::Key_F12);
  ASSERT_TRUE(view.preview().isVisible());
  ASSERT_TRUE(waitFor([&] { return run.evaluate(view.preview(), itemsInPage).toInt() == 4; }));
  EXPECT_TRUE(waitFor([&] { return !QFile::exists(run.programFolder() + "/preview/preview.html"); }));

  // Compiled and linked through every window between.
  const QByteArray page = "<html><body><p>Page</p></body></html>";
  run.write("site/index.html", page);
  run.write("site/other.html", page);
  run.thenPress("cmdOk");
  run.thenChooseFile(run.path("site/menu.js"));
  run.thenPress("cmdYes");
  run.then([](QWidget& window) {
    auto* files = window.findChild<QListWidget*>("File1");
    ASSERT_EQ(files->count(), 2);
    EXPECT_FALSE(window.findChild<QPushButton*>("cmdLink")->isEnabled());
    QTest::mouseClick(files->viewport(), Qt::LeftButton, {}, files->visualItemRect(files->item(0)).center());
    QTest::mouseClick(window.findChild<QPushButton*>("cmbAddToList"), Qt::LeftButton);
    EXPECT_EQ(window.findChild<QListWidget*>("List1")->count(), 1);
    QTest::mouseClick(window.findChild<QPushButton*>("cmdLink"), Qt::LeftButton);
  });
  run.thenPress("No");
  pressTool("Compile Menu");
  EXPECT_THAT(run.read("site/menu.js").toStdString(), HasSubstr("&#1084;"));
  EXPECT_THAT(run.read("site/index.html").toStdString(), HasSubstr("menu.js"));
  EXPECT_EQ(run.read("site/other.html"), page);
}

TEST_F(Desktop, AsksAheadOfLosingWorkAndSavesUnderTheTypedName) {
  run.start();
  run.run("mnuItemAddItem");
  run.thenPress("Cancel");
  EXPECT_FALSE(run.view().close());
  EXPECT_TRUE(run.view().isVisible());
  run.thenPress("Yes");
  run.thenChooseFile(run.path(QString::fromUtf8("меню ä")));
  EXPECT_TRUE(run.view().close());
  const auto file = run.path(QString::fromUtf8("меню ä.nbr"));
  EXPECT_TRUE(QFile::exists(file));
  EXPECT_TRUE(run.view().commands().action("mnuFileMRU1")->text().endsWith(file.right(12)));
}

TEST_F(Desktop, EveryDialogOpensAndClosesEachWay) {
  const auto sample = run.programFolder() + "/Examples/thistlewick/thistlewick.nbr";
  run.start(sample);
  EXPECT_EQ(namelessControls(run.view()), "");
  EXPECT_EQ(namelessControls(run.view().preview()), "");
  EXPECT_EQ(run.view().windowTitle(), "Nimbrel ver 2.0 - " + sample);
  run.program().main().document.settings.CompiledPath = fromDisplayPath(run.path(""));
  const struct {
    const char* command;
    const char* form;
    const char* button;
  } dialogs[] = {
      {"mnuHelpAbout", "frmAbout", "cmdOK"},
      {"mnuHelpTipOfTheDay", "frmTip", "cmdOK"},
      {"mnuToolsCompileProperties", "frmCompileProperties", "cmdCancel"},
      {"mnuStylePickStyle", "frmPickStyleMenu", "cmdOk"},
      {"mnuStyleSaveStyle", "frmSaveStyle", "btnCancel"},
      {"mnuStyleOpenStyleLibrary", "frmGallery", "btnCancel"},
      {"mnuToolsInsertMenuIntoWebpage", "frmInsertIntoWebPage0", "cmdCancel"},
  };
  for (const auto& dialog : dialogs) {
    SCOPED_TRACE(dialog.form);
    const auto see = [&](const std::function<void(QWidget&)>& close) {
      bool isSeen = false;
      run.then([&, close](QWidget& window) {
        EXPECT_EQ(window.objectName(), dialog.form);
        EXPECT_FALSE(window.windowTitle().isEmpty());
        EXPECT_EQ(namelessControls(window), "");
        isSeen = true;
        close(window);
      });
      run.run(dialog.command);
      EXPECT_TRUE(isSeen);
    };
    see([&](QWidget& window) {
      QTest::mouseClick(window.findChild<QAbstractButton*>(dialog.button), Qt::LeftButton);
    });
    see([](QWidget& window) { QTest::keyClick(&window, Qt::Key_Escape); });
    see([](QWidget& window) { window.close(); });
  }
  EXPECT_FALSE(run.main().state.IsDirty);
}

/// Enter in a list once pressed the window's button too, and rewrote the page.
TEST_F(Desktop, EnterInTheListOfPagesAddsAndLinksNothing) {
  run.start();
  const QByteArray page = "<html><body></body></html>";
  run.write("site/index.html", page);
  run.thenPress("cmdOk");
  run.thenChooseFile(run.path("site/menu.js"));
  run.thenPress("cmdYes");
  run.then([](QWidget& window) {
    auto* files = window.findChild<QListWidget*>("File1");
    files->setFocus();
    files->setCurrentRow(0);
    QTest::keyClick(files, Qt::Key_Return);
    EXPECT_EQ(window.findChild<QListWidget*>("List1")->count(), 1);
    EXPECT_TRUE(window.isVisible());
    QTest::keyClick(&window, Qt::Key_Escape);
  });
  run.run("mnuToolsCompileMenu");
  EXPECT_EQ(run.read("site/index.html"), page);
}

/// Another program may call the session's end off behind our answer.
TEST_F(Desktop, AsksAgainWhereTheProgramWentOnBehindItsAnswer) {
  run.start();
  run.run("mnuItemAddItem");
  run.thenPress("No");
  EXPECT_TRUE(run.view().mayClose());
  run.run("mnuItemAddItem");
  run.thenPress("Cancel");
  EXPECT_FALSE(run.view().mayClose());
}

TEST_F(Desktop, ComesBackOnTheScreenThatIsThere) {
  UserSettings settings;
  settings.SaveSetting("Settings2", "MainLeft", "1e30");
  settings.SaveSetting("Settings2", "MainTop", "11000");
  run.start();
  EXPECT_TRUE(run.view().screen()->availableGeometry().contains(run.view().geometry()));
}

TEST_F(Desktop, StandsInOrderBehindTheTip) {
  UserSettings().SaveSetting("Settings", "Show Tips at Startup", "-1");
  run.then([this](QWidget& tip) {
    EXPECT_EQ(run.view().tree().model()->rowCount(), 1);
    EXPECT_FALSE(run.view().commands().action("mnuEditPaste")->isEnabled());
    EXPECT_TRUE(run.view().sheet(Kind::Item).isHidden());
    QTest::keyClick(&tip, Qt::Key_Escape);
  });
  run.start();
}

TEST_F(Desktop, OptionsFollowTheArrowKeys) {
  run.start();
  run.then([](QWidget& window) {
    auto* first = window.findChild<QAbstractButton*>("Option1");
    first->setFocus();
    QTest::keyClick(first, Qt::Key_Down);
    EXPECT_TRUE(window.findChild<QAbstractButton*>("Option2")->isChecked());
    EXPECT_TRUE(window.findChild<QLineEdit*>("txtLibraryPath")->isEnabled());
    QTest::keyClick(&window, Qt::Key_Escape);
  });
  run.run("mnuToolsCompileProperties");
}

TEST_F(Desktop, CompilePropertiesStayOnATabWithABadFolder) {
  run.start();
  run.then([this](QWidget& window) {
    auto* custom = window.findChild<QAbstractButton*>("Option2");
    auto* folder = window.findChild<QLineEdit*>("txtLibraryPath");
    EXPECT_FALSE(folder->isEnabled());
    QTest::mouseClick(custom, Qt::LeftButton, {}, QPoint(8, custom->height() / 2));
    EXPECT_TRUE(folder->isEnabled());
    QTest::keyClicks(folder, "a?b");
    run.thenPress("OK");
    auto* tabs = window.findChild<QTabBar*>("TabStrip1");
    QTest::mouseClick(tabs, Qt::LeftButton, {}, tabs->tabRect(1).center());
    EXPECT_EQ(tabs->currentIndex(), 0);
    EXPECT_EQ(folder->selectedText(), "a?b");
    folder->setText("");
    QTest::keyClicks(folder, "lib");
    QTest::mouseClick(tabs, Qt::LeftButton, {}, tabs->tabRect(1).center());
    EXPECT_TRUE(window.findChild<QWidget*>("Frame2")->isVisible());
    QTest::mouseClick(window.findChild<QPushButton*>("cmdOk"), Qt::LeftButton);
  });
  run.run("mnuToolsCompileProperties");
  EXPECT_EQ(run.main().document.settings.nbrLibraryPath, "lib");
}

TEST_F(Desktop, TheGalleryShowsEachStyleAndAppliesOne) {
  run.start();
  run.then([](QWidget& window) {
    QTest::keyClicks(window.findChild<QLineEdit*>("txtStyleName"), "Mine");
    QTest::mouseClick(window.findChild<QPushButton*>("btnOk"), Qt::LeftButton);
  });
  run.thenPress("OK");
  run.run("mnuStyleSaveStyle");
  run.then([this](QWidget& window) {
    auto* styles = window.findChild<QComboBox*>("cboStyle");
    EXPECT_GE(styles->findText("Mine"), 0);
    styles->setCurrentText("Mine");
    emit styles->activated(styles->currentIndex());
    auto& form = dynamic_cast<FormWindow&>(window);
    EXPECT_TRUE(waitFor([&] { return run.evaluate(form, itemsInPage).toInt() >= 3; }));
    EXPECT_TRUE(waitFor([&] { return form.form().find("Timer1")->value; }));
    QTest::mouseClick(window.findChild<QPushButton*>("btnApply"), Qt::LeftButton);
  });
  run.run("mnuStyleOpenStyleLibrary");
  EXPECT_FALSE(
      QFile::exists(run.programFolder() + "/gallery/stylepreview.html"));  // though closed ahead of its timer
  EXPECT_TRUE(run.main().state.IsDirty);
}

TEST_F(Desktop, TheBrowserReadsTheProgramsFilesAlone) {
  run.start();
  run.write("secret.txt", "secret");
  run.write("program/preview/probe.html",
            "<html><body><img id=i src='../../secret.txt'><iframe id=f "
            "src='../../secret.txt'></iframe></body></html>");
  auto& window = run.view().preview();
  auto* browser = window.findChild<BrowserView*>();
  browser->navigate(run.programFolder() + "/preview/probe.html");
  ASSERT_TRUE(waitFor([&] { return run.evaluate(window, "document.readyState").toString() == "complete"; }));
  const auto read =
      "(function(){try{var x=new XMLHttpRequest();x.open('GET','../../secret.txt',false);x.send();return "
      "x.responseText}"
      "catch(e){return 'refused'}})()";
  EXPECT_EQ(run.evaluate(window, read).toString(), "refused");
  browser->navigate(run.path("secret.txt"));
  QTest::qWait(300);
  EXPECT_TRUE(browser->view()->url().toString().endsWith("probe.html"));
}

TEST_F(Desktop, ACrashOfTheBrowserLeavesTheProgramAndAReload) {
  run.start();
  run.run("mnuToolsPreview");
  auto& window = run.view().preview();
  ASSERT_TRUE(waitFor([&] { return run.evaluate(window, itemsInPage).toInt() == 3; }));
  auto* browser = window.findChild<BrowserView*>();
  emit browser->view()->renderProcessTerminated(QWebEnginePage::CrashedTerminationStatus, 1);
  QPushButton* reload = nullptr;
  for (auto* button : browser->findChildren<QPushButton*>()) reload = button;
  ASSERT_TRUE(reload != nullptr && reload->isVisible());
  QTest::qWait(1200);  // the files of the preview are gone by now
  QTest::mouseClick(reload, Qt::LeftButton);
  EXPECT_TRUE(waitFor([&] { return run.evaluate(window, itemsInPage).toInt() == 3; }));
}

TEST_F(Desktop, AnErrorThatNothingCatchesIsToldAndTheProgramGoesOn) {
  run.write("program/broken.nbr", "nbr200\r\n \"x\"");
  run.start();
  run.main().UpdateMRUList(fromDisplayPath(run.programFolder()), "broken.nbr");
  run.view().refresh();
  QString told;
  run.then([&](QWidget& window) {
    EXPECT_EQ(window.windowTitle(), "Nimbrel");
    told = window.findChild<QLabel*>("qt_msgbox_label")->text();
    QTest::keyClick(&window, Qt::Key_Return);
  });
  QTimer::singleShot(0, &run.view(), [&] { run.run("mnuFileMRU1"); });
  EXPECT_TRUE(waitFor([&] { return !told.isEmpty(); }));
  EXPECT_TRUE(told.startsWith(run.programFolder() + "/broken.nbr: ")) << told.toStdString();
  run.run("mnuFileNew");
  EXPECT_EQ(run.main().document.tvTreeView.size(), 4U);
}

TEST_F(Desktop, RegistersItsFileTypesForTheUserAndKeepsSettingsAsText) {
  run.start();
  EXPECT_THAT(run.read("data/mime/packages/nimbrel-user.xml").toStdString(),
              testing::AllOf(HasSubstr("*.nbr"), HasSubstr("Nimbrel Menu Style")));
  EXPECT_THAT(run.read("data/applications/example.nimbrel.Nimbrel.desktop").toStdString(),
              HasSubstr("MimeType=application/x-nimbrel-menu;\n"));
  run.view().resize(700, 500);
  EXPECT_TRUE(run.view().close());
  UserSettings settings;
  EXPECT_EQ(settings.GetSetting("Settings2", "MainWidth", ""), "10500");
  EXPECT_EQ(settings.GetSetting("Settings", "none", "standard"), "standard");
}

TEST_F(Desktop, OpensItsHelpAtTheTopicOfARow) {
  run.start();
  run.select("I1");
  EXPECT_TRUE(run.program().help().openTopic(1320));
  EXPECT_TRUE(run.program().help().isVisible());
  run.program().help().hide();
}

TEST_F(Desktop, LinkOfARowShowsItsLiveExample) {
  run.start();
  run.select("I1");
  auto& sheet = run.view().sheet(Kind::Item);
  run.main().prctlItem.EnterCell(0, column::Normal);
  run.view().refresh();
  QTest::keyClick(sheet.findChild<QLabel*>("lblExamplesLink"), Qt::Key_Return);
  EXPECT_TRUE(run.view().liveExamples().isVisible());
  EXPECT_TRUE(waitFor(
      [&] { return run.evaluate(run.view().liveExamples(), "document.title").toString() == "Item Name"; }));
}

TEST_F(Desktop, KeysOfTheTreeMoveDeleteAndCutWithTheirStates) {
  run.start();
  run.select("I2");
  QTest::keyClick(&run.view().tree(), Qt::Key_Down);
  EXPECT_EQ(selected()->Key, "I3");
  EXPECT_FALSE(run.view().commands().action("mnuItemMoveItemDown")->isEnabled());
  run.thenPress("Yes");
  QTest::keyClick(&run.view().tree(), Qt::Key_Delete);
  EXPECT_EQ(selected()->Key, "I2");
  EXPECT_FALSE(run.view().commands().button("Paste")->isEnabled());
  run.run("mnuEditCut");
  EXPECT_TRUE(run.view().commands().button("Paste")->isEnabled());
  EXPECT_EQ(run.view().tree().model()->rowCount(run.view().tree().model()->index(0, 0)), 1);
  // kept: the commands are the deleted submenu's until another node is chosen.
  run.run("mnuSubmenuAddSubmenu");
  run.thenPress("Yes");
  run.run("mnuSubmenuDeleteSubmenu");
  EXPECT_TRUE(run.view().commands().action("mnuSubmenuDeleteSubmenu")->isEnabled());
}

TEST_F(Desktop, TheTreeFollowsWhatItsKeysAndClicksChange) {
  run.start();
  const auto* tree = run.view().tree().model();
  const auto first = tree->index(0, 0, tree->index(0, 0));
  const auto typeName = [&](const char* name) {
    run.main().prctlItem.EnterCell(0, column::Normal);
    run.main().prctlItem.type(name);
  };
  run.select("I1");
  typeName("Renamed");
  run.select("I2");
  EXPECT_TRUE(first.data().toString().startsWith("Renamed"));
  run.select("I1");
  typeName("Again");
  run.select("I1");
  EXPECT_FALSE(run.main().prctlItem.Editing());
  EXPECT_TRUE(first.data().toString().startsWith("Again"));
  run.thenPress("Yes");
  QTest::keyClick(&run.view().tree(), Qt::Key_Delete);
  EXPECT_EQ(tree->rowCount(tree->index(0, 0)), 2);
}

TEST_F(Desktop, TheKeyboardStaysInTheSheetThatACommandBrings) {
  run.start();
  run.select("I1");
  run.view().sheet(Kind::Item).setFocus();
  run.run("mnuSubmenuAddSubmenu");
  EXPECT_TRUE(run.view().sheet(Kind::Submenu).isAncestorOf(QApplication::focusWidget()));
}

/// The model follows every change of the tree with signals that views can rely on.
TEST(TreeModelTest, FollowsEachChangeAndKeepsWhatIsOpen) {
  Tree tree;
  auto& root = tree.addRoot("M0", "Menu");
  for (const auto* key : {"I1", "I2", "I3"}) tree.add(root, Relationship::Child, key, key);
  TreeModel model(tree);
  const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::Fatal);
  const auto names = [&] {
    std::string all;
    for (int row = 0; row < model.rowCount(model.index(0, 0)); ++row) {
      all += model.index(row, 0, model.index(0, 0)).data().toString().toStdString() + ' ';
    }
    return all;
  };
  const QPersistentModelIndex kept = model.indexOf(tree.find("I2"));
  tree.move(*tree.find("I2"), *tree.find("I1"), Relationship::Previous);
  model.sync();
  EXPECT_EQ(names(), "I2 I1 I3 ");
  EXPECT_EQ(kept.row(), 0);
  tree.remove("I1");
  tree.add(*tree.find("I3"), Relationship::Next, "I4", "I4");
  tree.add(*tree.find("I2"), Relationship::Child, "S5", "S5");
  tree.find("I3")->Text = "Third";
  model.sync();
  EXPECT_EQ(names(), "I2 Third I4 ");
  EXPECT_TRUE(kept.isValid());
  EXPECT_EQ(model.node(model.index(0, 0, kept))->Key, "S5");
  tree.clear();
  model.sync();
  EXPECT_EQ(model.rowCount(), 0);
}

TEST(DisplayText, FiltersAreWrittenAsQtReadsThem) {
  EXPECT_EQ(fileFilter("Nimbrel Files (*.nbr)|*.nbr"), "Nimbrel Files (*.nbr)");
  EXPECT_EQ(fileFilter("Image files (*.gif;*.jpg)|*.gif;*.jpg"), "Image files (*.gif *.jpg)");
}

}  // namespace
}  // namespace nimbrel

int main(int argc, char** argv) {
  const auto application = nimbrel::offscreenApplication(argc, argv);
  testing::InitGoogleMock(&argc, argv);
  return RUN_ALL_TESTS();
}
