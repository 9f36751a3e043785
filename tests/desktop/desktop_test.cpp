#include <QAbstractItemModelTester>
#include <QAccessible>
#include <QClipboard>
#include <QComboBox>
#include <QDir>
#include <QHelpSearchQueryWidget>
#include <QHelpSearchResultWidget>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QLockFile>
#include <QMessageBox>
#include <QTabBar>
#include <QTest>
#include <QTextBrowser>
#include <QThread>
#include <QToolBar>
#include <atomic>
#include <csignal>
#include <gmock/gmock.h>

#include "desktop/display_text.h"
#include "desktop/folder_view.h"
#include "editing/editor.h"
#include "model/structure.h"
#include "persistence/menu_file.h"
#include "platform/file_error.h"
#include "recovery/recovery_file.h"
#include "support/desktop_run.h"

namespace nimbrel {
namespace {

using testing::HasSubstr;

constexpr const char* itemsInPage =
    "(function(){var n=0;document.querySelectorAll('*').forEach(function(e){"
    "if(e.shadowRoot)n+=e.shadowRoot.querySelectorAll('[role=menuitem]').length});return n})()";

template <class Widget = QAbstractButton>
Widget& find(const QWidget& window, const QString& name = {}) {
  return *window.findChild<Widget*>(name);
}

void click(QWidget& widget) { QTest::mouseClick(&widget, Qt::LeftButton); }
void click(QAbstractItemView& view, const QModelIndex& index) {
  view.scrollTo(index);
  QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, view.visualRect(index).center());
}
void press(QWidget& widget, Qt::Key key) { QTest::keyClick(&widget, key); }

/// Names the controls of a window that are outside of their parents or too small for their text, and those that the
/// keyboard reaches but a screen reader cannot name. "window" stands for one that is outside of the screen.
std::string flawedControls(const QWidget& window) {
  std::string flaws = window.screen()->availableGeometry().contains(window.geometry()) ? "" : "window ";
  for (auto* widget : window.findChildren<QWidget*>()) {
    const auto* parent = widget->parentWidget();
    const bool isPartOfOther = widget->objectName().startsWith("qt_") || parent->inherits("QWebEngineView") ||
                               parent->objectName() == "qt_scrollarea_viewport";
    if (!widget->isVisible() || widget->window() != &window || isPartOfOther) continue;
    const auto* label = qobject_cast<QLabel*>(widget);
    if (label != nullptr && label->text().isEmpty()) continue;
    const auto smallest = widget->minimumSizeHint();
    const bool isWrapped = label != nullptr && label->wordWrap();
    const int height = isWrapped ? label->heightForWidth(label->width()) : smallest.height();
    const bool hasText = label != nullptr || qobject_cast<QAbstractButton*>(widget) != nullptr;
    const bool isCut = hasText && (widget->width() < smallest.width() || widget->height() < height);
    const bool isOutside = !parent->rect().adjusted(0, 0, 1, 1).contains(widget->geometry());
    const bool isReached = (widget->focusPolicy() & Qt::TabFocus) != 0 && widget->focusProxy() == nullptr;
    const auto name = QAccessible::queryAccessibleInterface(widget)->text(QAccessible::Name);
    if (isCut || isOutside || (isReached && name.isEmpty())) {
      flaws += widget->objectName().toStdString() + '/' + widget->metaObject()->className() + ' ';
    }
  }
  return flaws;
}

class Desktop : public testing::Test {
 protected:
  void TearDown() override { EXPECT_EQ(run.problems().join('\n').toStdString(), ""); }

  QAction& action(const char* name) { return *run.view().commands().action(name); }
  void clickTool(const char* key) {
    auto& bar = find<QToolBar>(run.view(), "tbToolBar");
    click(*bar.widgetForAction(run.view().commands().button(key)));
  }
  std::string selected() { return run.main().selected()->Key; }
  QModelIndex item(int row) {
    const auto* tree = run.view().tree().model();
    return tree->index(row, 0, tree->index(0, 0));
  }
  void typeName(const char* name) {
    run.main().prctlItem.EnterCell(0, column::Normal);
    run.main().prctlItem.type(name);
  }
  bool showsItems(FormWindow& window, int count) {
    return waitFor([&] { return run.evaluate(window, itemsInPage).toInt() == count; });
  }

  DesktopRun run;
};

TEST_F(Desktop, FromAnEmptyStartToALinkedMenu) {
  run.start();
  auto& view = run.view();
  EXPECT_EQ(view.windowTitle(), "Nimbrel ver 2.0 - Untitled");
  run.select("I1");
  clickTool("Add Item");
  ASSERT_EQ(selected(), "I4");

  // The name is typed into the sheet, and the tree follows.
  auto& grid = find<QAbstractItemView>(view.sheet(Kind::Item));
  click(grid, grid.model()->index(0, 1));
  auto& entry = find<QLineEdit>(view.sheet(Kind::Item));
  ASSERT_TRUE(entry.isVisible());
  entry.selectAll();
  QApplication::clipboard()->setText(QString::fromUtf8("Über меню"));
  QTest::keySequence(&entry, QKeySequence::Paste);
  press(entry, Qt::Key_Return);
  EXPECT_EQ(view.tree().currentIndex().data().toString(), QString::fromUtf8("Über меню - Item4 - Item4"));
  EXPECT_TRUE(run.main().state.IsDirty);

  // The preview shows it in the embedded browser, and leaves nothing on the disk.
  press(view, Qt::Key_F12);
  ASSERT_TRUE(view.preview().isVisible() && showsItems(view.preview(), 4));
  EXPECT_FALSE(QFile::exists(run.programFolder() + "/preview"));

  // It is compiled and linked, with every window in between.
  const QByteArray page = "<html><body><p>Page</p></body></html>";
  for (const auto* file : {"site/index.html", "site/other.html", "site/archive/old.html"})
    run.write(file, page);
  run.answerWith("cmdOk");
  run.answerWithFile(run.path("site/menu.js"));
  run.answerWith("cmdYes");
  run.answer([this](QWidget& window) {
    auto& files = find<QListWidget>(window, "File1");
    auto& chosen = find<QListWidget>(window, "List1");
    auto& folders = find<FolderView>(window, "Dir1");
    const QPersistentModelIndex site = folders.currentIndex();
    EXPECT_EQ(site.data().toString(), "site");
    const auto archive = [&] { return folders.model()->index(0, 0, site); };
    ASSERT_TRUE(waitFor([&] { return archive().data().toString() == "archive"; }));
    EXPECT_TRUE(waitFor([&] { return folders.viewport()->rect().contains(folders.visualRect(site)); }));
    click(folders, archive());
    ASSERT_EQ(files.count(), 1);
    EXPECT_EQ(files.item(0)->text(), "old.html");
    click(folders, site);
    ASSERT_EQ(files.count(), 2);
    EXPECT_FALSE(find(window, "cmdLink").isEnabled());
    // Enter adds the page, and does not press the window's button as well.
    click(files, files.model()->index(0, 0));
    press(files, Qt::Key_Return);
    EXPECT_EQ(chosen.count(), 1);
    EXPECT_EQ(run.read("site/index.html"), run.read("site/other.html"));
    click(find(window, "cmdLink"));
  });
  run.answerWith("No");
  clickTool("Compile Menu");
  EXPECT_THAT(run.read("site/menu.js").toStdString(), HasSubstr("&#1084;"));
  EXPECT_THAT(run.read("site/index.html").toStdString(), HasSubstr("menu.js"));
  EXPECT_EQ(run.read("site/other.html"), page);
}

TEST_F(Desktop, AsksBeforeUnsavedWorkIsLostAndSavesUnderTheTypedName) {
  run.start();
  auto& view = run.view();
  run.run("mnuItemAddItem");
  run.answerWith("Cancel");
  EXPECT_FALSE(view.close());
  for (const int signal : {SIGTERM, SIGHUP, SIGINT}) {
    run.answerWith("Cancel");
    std::raise(signal);
    EXPECT_TRUE(waitFor([&] { return run.isAnswered() && QApplication::activeModalWidget() == nullptr; }));
    EXPECT_TRUE(view.isVisible()) << signal;
  }
  // The end of the session may still be cancelled after our answer.
  run.answerWith("No");
  EXPECT_TRUE(view.mayClose());
  run.run("mnuItemAddItem");
  run.answerWith("Yes");
  run.answerWithFile(run.path(QString::fromUtf8("меню ä")));
  std::raise(SIGTERM);
  EXPECT_TRUE(waitFor([&] { return !view.isVisible(); }));
  const auto file = run.path(QString::fromUtf8("меню ä.nbr"));
  EXPECT_TRUE(QFile::exists(file));
  EXPECT_TRUE(action("mnuFileMRU1").text().endsWith(file.right(12)));
}

TEST_F(Desktop, TheTreeRenamesAddsAndMovesByKeys) {
  run.start();
  run.select("I3");
  auto& tree = run.view().tree();
  press(tree, Qt::Key_F2);
  auto& editor = find<QLineEdit>(tree);
  EXPECT_EQ(editor.text(), "Item3");
  editor.setText("About");
  press(editor, Qt::Key_Return);
  EXPECT_TRUE(waitFor([&] { return tree.currentIndex().data() == "About"; }));
  press(tree, Qt::Key_Insert);
  EXPECT_EQ(selected(), "I4");
  QTest::keyClick(&tree, Qt::Key_Up, Qt::ControlModifier);
  EXPECT_EQ(tree.currentIndex().row(), 2);
  QTest::mouseClick(tree.viewport(), Qt::RightButton, {},
                    tree.visualRect(tree.model()->index(0, 0, tree.currentIndex().parent())).center());
  EXPECT_EQ(selected(), "I1");
  QApplication::activePopupWidget()->close();
  for (int i = 0; i < 3; ++i) QTest::keyClick(&tree, Qt::Key_Z, Qt::ControlModifier);
  EXPECT_FALSE(run.main().state.IsDirty);
  EXPECT_EQ(selected(), "I3");
}

TEST_F(Desktop, AMenuIsTypedLikeAnOutline) {
  run.start();
  run.select("I3");
  auto& tree = run.view().tree();
  const auto& model = *tree.model();
  press(tree, Qt::Key_Insert);
  const auto type = [&](const char* name, Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
    auto& editor = find<QLineEdit>(tree);
    QTest::keyClicks(&editor, name);
    QTest::keyClick(&editor, key, modifiers);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  };
  type("Rooms", Qt::Key_Return);
  type("Big", Qt::Key_Tab);
  type("", Qt::Key_Return);
  type("Small", Qt::Key_Return);
  type("Contact", Qt::Key_Backtab, Qt::ShiftModifier);
  type("Contact us", Qt::Key_Return);
  type("", Qt::Key_Return);  // an item without a name ends the outline, and goes
  const auto& nodes = run.main().document.tvTreeView;
  EXPECT_EQ(run.main().contentOf({nodes.find("I4"), run.main().selected()}).text,
            "Rooms\n\tBig\n\tSmall\nContact us\n");
  EXPECT_EQ(model.rowCount(model.index(0, 0)), 5);
}

TEST_F(Desktop, SeveralNodesAreSelectedEditedAndDragged) {
  run.start();
  auto& tree = run.view().tree();
  auto& model = *tree.model();
  const auto item = [&](int row) { return model.index(row, 0, model.index(0, 0)); };
  const auto pressAt = [&](int row, Qt::KeyboardModifiers modifiers) {
    QTest::mouseClick(tree.viewport(), Qt::LeftButton, modifiers, tree.visualRect(item(row)).center());
  };
  pressAt(0, {});
  pressAt(2, Qt::ControlModifier);
  EXPECT_EQ(run.main().selection().size(), 2U);
  EXPECT_EQ(selected(), "I3");
  QTest::keyClick(&tree, Qt::Key_X, Qt::ControlModifier);
  EXPECT_EQ(model.rowCount(model.index(0, 0)), 1);
  QTest::keyClick(&tree, Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(model.rowCount(model.index(0, 0)), 3);

  const std::unique_ptr<QMimeData> dragged(model.mimeData({item(0)}));
  EXPECT_FALSE(model.canDropMimeData(dragged.get(), Qt::MoveAction, 1, 0, model.index(0, 0)))
      << "it is there";
  EXPECT_TRUE(model.dropMimeData(dragged.get(), Qt::MoveAction, 3, 0, model.index(0, 0)));
  EXPECT_EQ(item(2).data(), "Item2");
  QMimeData outline;  // from another program
  outline.setText("One\n\tBelow\nTwo");
  EXPECT_TRUE(model.dropMimeData(&outline, Qt::CopyAction, 0, 0, model.index(0, 0)));
  EXPECT_EQ(item(1).data(), "Two");
  EXPECT_EQ(run.main().selection().size(), 2U);
}

TEST_F(Desktop, TheFindBarFiltersTheTree) {
  run.start(run.programFolder() + "/Examples/thistlewick/thistlewick.nbr");
  auto& tree = run.view().tree();
  const auto visible = [&] {
    int rows = 0;
    for (auto index = tree.model()->index(0, 0); index.isValid(); index = tree.indexBelow(index)) ++rows;
    return rows;
  };
  run.select("M0");
  const int all = visible();
  run.run("mnuEditFind");
  auto& text = find<QLineEdit>(run.view(), "txtFind");
  EXPECT_EQ(QApplication::focusWidget(), &text);
  QTest::keyClicks(&text, "ORCHID");
  EXPECT_EQ(visible(), 4);  // with the menus above it
  EXPECT_EQ(find<QLabel>(run.view(), "lblFound").text(), "1 found");
  press(text, Qt::Key_Return);
  EXPECT_EQ(selected(), "I5");
  find<QLineEdit>(run.view(), "txtReplace").setText("Orchard");
  find<QComboBox>(run.view(), "cboReplaceIn").setCurrentText("in names");
  click(find(run.view(), "cmdReplace"));
  EXPECT_EQ(find<QLabel>(run.view(), "lblFound").text(), "3 replaced");
  EXPECT_EQ(tree.currentIndex().data().toString(), "Orchard Room");
  press(text, Qt::Key_Escape);
  EXPECT_EQ(visible(), all);
  EXPECT_TRUE(tree.hasFocus());
}

TEST_F(Desktop, ALockedSettingsFileHoldsNothingUp) {
  QLockFile lock(run.path("config/Nimbrel/Nimbrel.ini.lock"));
  ASSERT_TRUE(lock.tryLock());
  UserSettings settings;
  settings.SaveSetting("Settings", "key", "new");
  EXPECT_EQ(settings.GetSetting("Settings", "key", ""), "new");
  EXPECT_EQ(UserSettings().GetSetting("Settings", "key", "none"), "none");
  lock.unlock();
  EXPECT_TRUE(waitFor([] { return UserSettings().GetSetting("Settings", "key", "none") == "new"; }));
}

TEST_F(Desktop, AFileIsKnownByItsWholePathAndReloadedAfterAChangeByOthers) {
  Document document;
  BuildDefaultDocument(document);
  run.write("a.nbr", QByteArray::fromStdString(menuFileText(document)));
  const auto before = QDir::currentPath();
  QDir::setCurrent(run.path(""));
  run.start("a.nbr");
  QDir::setCurrent(before);
  EXPECT_EQ(toDisplayPath(run.main().state.FilePath), QDir::cleanPath(run.path("")));

  AddItem(document, "M0");
  run.write("a.nbr", QByteArray::fromStdString(menuFileText(document)));
  run.answerWith("Reload");
  QEvent focus(QEvent::ActivationChange);
  QCoreApplication::sendEvent(&run.view(), &focus);
  EXPECT_TRUE(waitFor([&] { return run.isAnswered(); }));
  const auto& tree = find<TreeView>(run.view(), "tvTreeView");
  EXPECT_TRUE(waitFor([&] { return tree.model()->rowCount(tree.model()->index(0, 0)) == 4; }));
}

/// Also runs on screens of higher resolution.
TEST_F(Desktop, EveryDialogOpensWholeAndClosesEachWay) {
  const auto sample = run.programFolder() + "/Examples/thistlewick/thistlewick.nbr";
  run.start(sample);
  run.view().setGeometry(run.view().screen()->availableGeometry());
  for (const auto* key : {"I1", "M0"}) {
    run.select(key);
    EXPECT_EQ(flawedControls(run.view()), "");
  }
  EXPECT_EQ(run.view().windowTitle(), "Nimbrel ver 2.0 - " + sample);
  run.main().editor.setCompileTarget(fromDisplayPath(run.path("")), "");
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
    const std::function<void(QWidget&)> waysToClose[] = {
        [&](QWidget& window) { click(find(window, dialog.button)); },
        [](QWidget& window) { press(window, Qt::Key_Escape); },
        [](QWidget& window) { window.close(); },
    };
    for (const auto& close : waysToClose) {
      run.answer([&](QWidget& window) {
        EXPECT_EQ(window.objectName().toStdString(), dialog.form);
        EXPECT_FALSE(window.windowTitle().isEmpty());
        EXPECT_EQ(flawedControls(window), "");
        close(window);
      });
      run.run(dialog.command);
    }
  }
  EXPECT_FALSE(run.main().state.IsDirty);
}

TEST_F(Desktop, StartsOnAnExistingScreenBehindTheTipAndKeepsItsSettings) {
  UserSettings settings;
  settings.SaveSetting("Settings", "Show Tips at Startup", "-1");
  settings.SaveSetting("Settings2", "MainLeft", "1e30");
  settings.SaveSetting("Settings2", "MainTop", "11000");
  run.answer([this](QWidget& tip) {
    EXPECT_EQ(run.view().tree().model()->rowCount(), 1);
    EXPECT_FALSE(action("mnuEditPaste").isEnabled());
    EXPECT_TRUE(run.view().sheet(Kind::Item).isHidden());
    press(tip, Qt::Key_Escape);
  });
  run.start();
  EXPECT_TRUE(run.view().screen()->availableGeometry().contains(run.view().geometry()));
  EXPECT_THAT(run.read("data/mime/packages/nimbrel-user.xml").toStdString(),
              testing::AllOf(HasSubstr("*.nbr"), HasSubstr("Nimbrel Menu Style")));
  EXPECT_THAT(run.read("data/applications/example.nimbrel.Nimbrel.desktop").toStdString(),
              HasSubstr("MimeType=application/x-nimbrel-menu;\n"));
  run.write("share/applications/example.nimbrel.Nimbrel.desktop", "of a package");
  qputenv("XDG_DATA_DIRS", run.path("share").toLocal8Bit());
  FileTypes(run.path("unused"), "nimbrel").publish();
  EXPECT_FALSE(QFile::exists(run.path("unused")));
  qunsetenv("XDG_DATA_DIRS");
  run.view().resize(700, 500);
  EXPECT_TRUE(run.view().close());
  EXPECT_EQ(settings.GetSetting("Settings2", "MainWidth", ""), "10500");
  EXPECT_EQ(settings.GetSetting("Settings", "none", "standard"), "standard");
}

TEST_F(Desktop, CompilePropertiesStayOnATabWithABadFolder) {
  run.start();
  run.answer([this](QWidget& window) {
    auto& folder = find<QLineEdit>(window, "txtLibraryPath");
    EXPECT_FALSE(folder.isEnabled());
    find(window, "Option1").setFocus();
    press(find(window, "Option1"), Qt::Key_Down);
    EXPECT_TRUE(find(window, "Option2").isChecked() && folder.isEnabled());
    QTest::keyClicks(&folder, "a?b");
    run.answerWith("OK");
    auto& tabs = find<QTabBar>(window, "TabStrip1");
    const auto clickTab = [&] { QTest::mouseClick(&tabs, Qt::LeftButton, {}, tabs.tabRect(1).center()); };
    clickTab();
    EXPECT_EQ(tabs.currentIndex(), 0);
    EXPECT_EQ(folder.selectedText(), "a?b");
    QTest::keyClicks(&folder, "lib");
    clickTab();
    EXPECT_TRUE(find<QWidget>(window, "Frame2").isVisible());
    click(find(window, "cmdOk"));
  });
  run.run("mnuToolsCompileProperties");
  EXPECT_EQ(run.main().document.settings.nbrLibraryPath, "lib");
}

TEST_F(Desktop, TheGalleryShowsEachStyleAndAppliesOne) {
  run.start();
  run.answer([](QWidget& window) {
    QTest::keyClicks(&find<QLineEdit>(window, "txtStyleName"), "Mine");
    click(find(window, "btnOk"));
  });
  run.answerWith("OK");
  run.run("mnuStyleSaveStyle");
  run.answer([this](QWidget& window) {
    auto& styles = find<QComboBox>(window, "cboStyle");
    EXPECT_GE(styles.findText("Mine"), 0);
    styles.setCurrentText("Mine");
    emit styles.activated(styles.currentIndex());
    auto& form = dynamic_cast<FormWindow&>(window);
    EXPECT_TRUE(showsItems(form, 3));
    EXPECT_TRUE(waitFor([&] { return form.form().find("Timer1")->value; }));
    click(find(window, "btnApply"));
  });
  run.run("mnuStyleOpenStyleLibrary");
  for (const auto* made : {"stylepreview.html", "stylepreview.js"}) {
    EXPECT_FALSE(QFile::exists(run.programFolder() + "/gallery/" + made));
  }
  EXPECT_TRUE(run.main().state.IsDirty);
}

TEST_F(Desktop, ErrorsAreReportedAfterTheWindowsAreUpToDate) {
  run.write("program/broken.nbr", "nbr200\r\n \"x\"");
  run.start();
  const auto expectError = [this](const QString& start) {
    run.answer([this, start](QWidget& window) {
      const auto& box = dynamic_cast<QMessageBox&>(window);
      EXPECT_EQ(box.windowTitle(), "Nimbrel");
      EXPECT_TRUE(box.text().startsWith(start)) << box.text().toStdString();
      press(window, Qt::Key_Return);
    });
  };
  const auto fail = [] { throw FileError("\\site\\a.js", "disk full"); };
  run.main().UpdateMRUList(fromDisplayPath(run.programFolder()), "broken.nbr");
  run.view().refresh();
  expectError(run.programFolder() + "/broken.nbr could not be read whole: line 2: ");
  run.run("mnuFileMRU1");
  run.run("mnuFileNew");
  EXPECT_EQ(run.main().document.tvTreeView.size(), 4U);

  // In a modal form, which its event closes.
  run.answer([&](QWidget& window) {
    auto& form = dynamic_cast<FormWindow&>(window).form();
    form.find("cmdOK")->event = [&] {
      form.Close();
      fail();
    };
    expectError("/site/a.js: disk full");
    click(find(window, "cmdOK"));
    EXPECT_FALSE(window.isVisible());
  });
  run.run("mnuHelpAbout");
  EXPECT_EQ(QApplication::activeModalWidget(), nullptr);

  // In a timer.
  auto& preview = run.view().preview();
  auto& timer = *preview.form().find("Timer1");
  timer.event = [&] {
    timer.value = false;
    fail();
  };
  timer.interval = 0;
  timer.value = true;
  expectError("/site/a.js: disk full");
  preview.refresh();
  EXPECT_TRUE(waitFor([&] { return run.isAnswered() && QApplication::activeModalWidget() == nullptr; }));
}

TEST_F(Desktop, WorkAsideLeavesTheWindowAliveAndTellsItsErrors) {
  run.start();
  QThread* worker = nullptr;
  std::atomic<bool> isTimerRun = false;
  QTimer::singleShot(10, &run.view(), [&] {
    run.view().close();  // as the end of the session would
    EXPECT_TRUE(run.view().isVisible());
    isTimerRun = true;
  });
  const auto work = [&] {
    worker = QThread::currentThread();
    while (!isTimerRun) QThread::msleep(1);
    throw FileError("\\site\\a.js", "disk full");
  };
  EXPECT_THROW(run.view().runAside(work), FileError);
  EXPECT_NE(worker, nullptr);
  EXPECT_NE(worker, QThread::currentThread());
  EXPECT_TRUE(waitFor([&] { return !run.view().isVisible(); }));
}

TEST_F(Desktop, LiveExamplesAndHelpTopicsOpenAndTheHelpFindsWords) {
  run.start();
  run.select("I1");
  typeName("");
  run.view().refresh();
  press(find<QLabel>(run.view().sheet(Kind::Item), "lblExamplesLink"), Qt::Key_Return);
  auto& examples = run.view().liveExamples();
  EXPECT_TRUE(waitFor([&] { return run.evaluate(examples, "document.title").toString() == "Item Name"; }));
  auto& help = run.program().help();
  EXPECT_TRUE(help.openTopic(1320));
  auto& page = *help.centralWidget()->findChild<QTextBrowser*>({}, Qt::FindDirectChildrenOnly);
  EXPECT_EQ(page.source().fragment(), "name");
  run.run("mnuHelpContents");
  EXPECT_TRUE(page.source().fragment().isEmpty());
  run.run("mnuHelpSearchForHelpOn");
  auto& words = find<QLineEdit>(*help.findChild<QHelpSearchQueryWidget*>());
  auto& results = find<QTextBrowser>(*help.findChild<QHelpSearchResultWidget*>());
  words.setText("properties in order");
  QTextCursor found;
  ASSERT_TRUE(waitFor([&] {  // the index may still be in the making
    press(words, Qt::Key_Return);
    found = results.document()->find("All properties in order");
    return !found.isNull();
  }));
  QTest::mouseClick(results.viewport(), Qt::LeftButton, {},
                    results.cursorRect(found).center() - QPoint(5, 0));
  EXPECT_TRUE(page.documentTitle().startsWith("All properties in order"));
  help.hide();
}

TEST_F(Desktop, KeysAndClicksInTheTreeMoveRenameAndDelete) {
  run.start();
  auto& tree = run.view().tree();
  run.select("I1");
  typeName("Renamed");
  run.select("I2");
  EXPECT_TRUE(item(0).data().toString().startsWith("Renamed"));
  typeName("Again");
  run.select("I2");
  EXPECT_FALSE(run.main().prctlItem.Editing());
  EXPECT_TRUE(item(1).data().toString().startsWith("Again"));
  press(tree, Qt::Key_Down);
  EXPECT_EQ(selected(), "I3");
  EXPECT_FALSE(action("mnuItemMoveItemDown").isEnabled());
  run.answerWith("Yes");
  press(tree, Qt::Key_Delete);
  EXPECT_EQ(selected(), "I2");
  auto& paste = *run.view().commands().button("Paste");
  EXPECT_FALSE(paste.isEnabled());
  run.run("mnuEditCut");
  EXPECT_TRUE(paste.isEnabled());
  EXPECT_EQ(tree.model()->rowCount(tree.model()->index(0, 0)), 1);
  // The keyboard stays in the sheet, which is another one now.
  run.view().sheet(Kind::Item).setFocus();
  run.run("mnuSubmenuAddSubmenu");
  EXPECT_TRUE(run.view().sheet(Kind::Submenu).isAncestorOf(run.view().focusWidget()));
  // Quirk: the commands are those of the deleted submenu until another node is chosen.
  run.answerWith("Yes");
  run.run("mnuSubmenuDeleteSubmenu");
  EXPECT_TRUE(action("mnuSubmenuDeleteSubmenu").isEnabled());
}

TEST(DesktopRunTest, WrongAnswersAreProblems) {
  DesktopRun run;
  run.start();
  run.run("mnuHelpAbout");
  run.answerWith("nothing");
  run.run("mnuHelpAbout");
  run.answerWith("cmdOK");
  EXPECT_EQ(run.problems().size(), 3);
}

/// With the signals that views rely on.
TEST(TreeModelTest, FollowsEachChangeAndKeepsIndexesValid) {
  Editor editor;
  const auto& tree = editor.document().tvTreeView;
  TreeModel model(editor);
  const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::Fatal);
  Document document;
  BuildDefaultDocument(document);
  editor.open(document);
  const auto names = [&] {
    QStringList all;
    for (const auto& index :
         model.match(model.index(0, 0), Qt::DisplayRole, "", -1, Qt::MatchStartsWith | Qt::MatchRecursive)) {
      all += index.data().toString();
    }
    return all.join(' ');
  };
  const QPersistentModelIndex kept = model.indexOf(tree.find("I2"));
  Edit edit("Several");
  edit.move(*tree.find("I2"), {"M0", "I1"}, 9);
  edit.remove(*tree.find("I1"));
  edit.insert(*newSubmenu(document, "I2"));
  ItemObj third;
  setNames(third, "Third");
  edit.set(document, *tree.find("I3"), third, "Third");
  editor.apply(std::move(edit));
  EXPECT_EQ(names(), "Main Menu Item2 Submenu4 Third");
  EXPECT_EQ(kept.row(), 0);
  editor.undo();
  EXPECT_EQ(names(), "Main Menu Item1 Item2 Item3");
  EXPECT_EQ(kept.row(), 1);
  editor.open({});
  EXPECT_EQ(model.rowCount(), 0);
}

TEST_F(Desktop, OffersWhatACrashHasLeft) {
  Document lost;
  BuildDefaultDocument(lost);
  for (const char* name : {"1", "2"}) {
    const auto folder = "state/nimbrel/recovery/" + QString(name);
    ASSERT_TRUE(QDir().mkpath(run.path(folder)));
    const RecoveryHead head{.folder = "\\site", .name = name + std::string(".nbr")};
    run.write(folder + "/document", QByteArray::fromStdString(recoveryHeadText(head) + menuFileText(lost)));
  }
  run.answer([this](QWidget& window) {
    EXPECT_EQ(flawedControls(window), "");
    auto& list = find<QListWidget>(window, "List1");
    EXPECT_TRUE(list.hasFocus());
    EXPECT_EQ(list.item(0)->text(), "/site/1.nbr, " + list.item(1)->text().section(", ", 1));
    EXPECT_THAT(find<QLabel>(window, "lblTree").text().toStdString(), HasSubstr("Item2"));
    press(list, Qt::Key_Down);
    press(list, Qt::Key_Return);
  });
  run.start();
  EXPECT_EQ(run.view().windowTitle(), "Nimbrel ver 2.0 - 2.nbr");
  EXPECT_TRUE(run.main().state.IsDirty);
  EXPECT_EQ(run.main().document, lost);
  // The other one is there for the next start, and this one is kept until it is saved or given up.
  const auto kept = [this] {
    return QDir(run.path("state/nimbrel/recovery")).entryList(QDir::Dirs | QDir::NoDotAndDotDot).join(' ');
  };
  EXPECT_EQ(kept(), "1 2");
  run.answerWith("No");
  EXPECT_TRUE(run.view().close());
  EXPECT_EQ(kept(), "1");
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
