// Menus of strangers in the preview: what their scripts cannot read, and how a page that misbehaves is ended.
#include <QClipboard>
#include <QDir>
#include <QElapsedTimer>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLabel>
#include <QPushButton>
#include <QTest>
#include <QWebEngineView>
#include <gmock/gmock.h>

#include "desktop/browser_view.h"
#include "desktop/display_text.h"
#include "desktop/page_bar.h"
#include "desktop/served_pages.h"
#include "support/desktop_run.h"

namespace nimbrel {
namespace {

class Isolation : public testing::Test {
 protected:
  Isolation() {
    run.write("secret.html", "<script>document.title='secret'</script>secret");
    run.start();
  }
  void TearDown() override { EXPECT_EQ(run.problems().join('\n').toStdString(), ""); }

  FormWindow& window() { return run.view().preview(); }
  BrowserView& browser() { return *window().findChild<BrowserView*>(); }

  /// Previews a menu whose compile folder leaves its quotes and runs as script.
  void preview(const std::string& script) {
    run.main().editor.setCompileTarget("';" + script + "//", "");
    run.run("mnuToolsPreview");
  }
  std::string title() { return run.evaluate(window(), "document.title").toString().toStdString(); }
  std::string titleOf(const std::string& script) {
    preview(script);
    waitFor([&] { return !title().empty(); });
    return title();
  }

  /// The visible bar or notice with this button.
  QPushButton* button(const char* text) {
    for (auto* one : browser().findChildren<QPushButton*>()) {
      if (one->text() == text && one->isVisible()) return one;
    }
    return nullptr;
  }
  bool offers(const char* text) {
    return waitFor([&] { return button(text) != nullptr; });
  }
  bool tells(const QString& text) {
    return waitFor([&] {
      const auto labels = browser().findChildren<QLabel*>();
      return std::ranges::any_of(labels,
                                 [&](auto* one) { return one->isVisible() && one->text().contains(text); });
    });
  }
  /// The main window still takes input, and within a time that an author does not notice.
  bool isUsable() {
    const auto count = run.main().document.tvTreeView.size();
    QElapsedTimer time;
    time.start();
    for (int i = 0; i < 10; ++i) {
      run.select(i % 2 == 0 ? "I2" : "I3");
      QCoreApplication::processEvents();
    }
    return run.main().selected()->Key == "I3" && run.main().document.tvTreeView.size() == count &&
           time.elapsed() < 3000;
  }

  DesktopRun run;
};

/// What a script could read or reach. Each attempt ends with what it got, or with "refused".
constexpr const char* attempts = R"(
(function(){
  if (top !== self) return;
  var results = {}, pending = { load: 1 }, afterLoad = [];
  function ended(name) {
    delete pending[name];
    var left = Object.keys(pending);
    document.title = left.length ? 'waits for ' + left : JSON.stringify(results);
  }
  function attempt(name, start) {
    pending[name] = 1;
    function tell(result) { if (!(name in results)) { results[name] = String(result); ended(name); } }
    function refuse() { tell('refused'); }
    try { start(tell, refuse); } catch (fault) { refuse(); }
  }
  function element(name, values) {
    var made = document.createElement(name);
    for (var key in values) made[key] = values[key];
    return document.documentElement.appendChild(made);
  }
  function request(name, url) {
    attempt(name, function (tell) {
      var sent = new XMLHttpRequest();
      sent.open('GET', url, false);
      sent.send();
      tell('read ' + sent.responseText);
    });
  }
  function picture(name, url) {
    attempt(name, function (tell, refuse) { element('img', { onload: tell, onerror: refuse, src: url }); });
  }
  function frame(name, url) {
    attempt(name, function (tell, refuse) {
      var made = element('iframe', { src: url });
      afterLoad.push(function () {
        try {
          var inner = made.contentDocument;
          tell(inner && inner.body.innerText ? 'read ' + inner.URL : 'refused');
        } catch (fault) { refuse(); }
      });
    });
  }
  request('request of a copied file', 'nbrData/nbrlib1.js');
  request('request of its own page', 'preview.html');
  request('request of another group', 'nimbrel://gallery/nostyles.html');
  request('request of a file', 'SECRET');
  picture('picture of another group', 'nimbrel://gallery/stylepreview-back.jpg');
  picture('picture of a file', 'SECRET');
  frame('frame of its own page', 'preview.html');
  frame('frame of another group', 'nimbrel://gallery/nostyles.html');
  frame('frame of a file', 'SECRET');
  attempt('fetch of a copied file', function (tell, refuse) { fetch('nbrData/dot.gif').then(tell, refuse); });
  attempt('file from a frame without address', function (tell) {
    var sent = new (element('iframe', {}).contentWindow.XMLHttpRequest)();
    sent.open('GET', 'SECRET', false);
    sent.send();
    tell('read ' + sent.responseText);
  });
  attempt('another window', function (tell) { tell(window.open('about:blank') ? 'opened' : 'refused'); });
  attempt('storage', function (tell) { localStorage.a = 1; tell('stored'); });
  attempt('cookies', function (tell) { document.cookie = 'a=1'; tell(document.cookie || 'refused'); });
  attempt('database', function (tell, refuse) {
    var asked = indexedDB.open('a');
    asked.onsuccess = tell;
    asked.onerror = refuse;
  });
  attempt('clipboard', function (tell) {
    var reached = document.execCommand('paste') || document.execCommand('copy') || navigator.clipboard;
    tell(reached ? 'reached' : 'refused');
  });
  attempt('place', function (tell, refuse) { navigator.geolocation.getCurrentPosition(tell, refuse); });
  attempt('camera', function (tell) { tell(navigator.mediaDevices ? 'reached' : 'refused'); });
  attempt('notices', function (tell, refuse) {
    Notification.requestPermission(function (answer) { tell(answer === 'granted' ? answer : 'refused'); });
  });
  attempt('origin', function (tell) { tell(self.origin + ' ' + isSecureContext); });
  attempt('eval', function (tell) { tell(eval('[1,2].length')); });
  attempt('questions', function (tell) { tell(confirm('a') + ' ' + prompt('b', 'c')); });
  window.addEventListener('load', function () {
    afterLoad.forEach(function (check) { check(); });
    element('a', { href: 'nbrData/dot.gif', download: 'dot.gif' }).click();
    location = 'SECRET';
    ended('load');
  });
})();
)";

TEST_F(Isolation, ScriptsOfAMenuRunAndReachNothing) {
  QApplication::clipboard()->setText("mine");
  const auto files = QDir(run.path("")).entryList(QDir::AllEntries);
  const auto secret = QUrl::fromLocalFile(run.path("secret.html")).toString();
  preview(QString(attempts).replace("SECRET", secret).simplified().toStdString());
  EXPECT_TRUE(waitFor([&] { return title().starts_with('{'); }, 20'000)) << title();
  const auto results = QJsonDocument::fromJson(QByteArray::fromStdString(title())).object();
  EXPECT_EQ(results.size(), 22);
  for (auto result = results.begin(); result != results.end(); ++result) {
    const auto name = result.key();
    const auto* expected = name == "origin"      ? "null false"
                           : name == "eval"      ? "2"
                           : name == "questions" ? "false null"
                                                 : "refused";
    EXPECT_EQ(result.value().toString().toStdString(), expected) << name.toStdString();
  }
  EXPECT_EQ(QApplication::clipboard()->text(), "mine");
  EXPECT_EQ(QDir(run.path("")).entryList(QDir::AllEntries), files);
}

TEST_F(Isolation, OnlyTheFilesOfTheGroupsAreServed) {
  preview("");
  const OverlayFileSystem& previews = dynamic_cast<OverlayFileSystem&>(run.main().ports.previews);
  const ServedPages pages(previews, fromDisplayPath(run.programFolder()));
  run.write("program/preview/mine.html", "of the disk");
  QFile::link(run.path("secret.html"), run.programFolder() + "/Live Examples/linked.html");
  for (const auto* url :
       {"nimbrel://preview/preview/preview.html", "nimbrel://preview/preview-back.jpg",
        "nimbrel://gallery/nostyles.html", "nimbrel://examples/Live%20Examples/menus/example.css"}) {
    EXPECT_TRUE(pages.read(QUrl(url))) << url;
  }
  for (const auto* url : {"nimbrel://preview/preview/mine.html", "nimbrel://preview/nostyles.html",
                          "nimbrel://preview/TIPOFDAY.TXT", "nimbrel://preview/preview/..%2F..%2Fsecret.html",
                          "nimbrel://preview/preview%5Cpreview.html",
                          "nimbrel://gallery/preview/preview.html", "nimbrel://gallery/gallery/Almond.nbs",
                          "nimbrel://other/dot.gif", "nimbrel://examples/Live%20Examples/linked.html",
                          "nimbrel://examples/Live%20Examples/../TIPOFDAY.TXT"}) {
    EXPECT_FALSE(pages.read(QUrl(url))) << url;
  }
}

TEST_F(Isolation, WhatAPageSaysStandsInABarThatTheKeyboardCloses) {
  EXPECT_EQ(titleOf("alert('Hello '+[1,2]);alert('again');document.title='went on'"), "went on");
  EXPECT_TRUE(tells("The page says (2 messages): again"));
  EXPECT_FALSE(button("Close")->accessibleDescription().isEmpty());
  QTest::keyClick(button("Close"), Qt::Key_Space);
  EXPECT_EQ(button("Close"), nullptr);
}

TEST_F(Isolation, APageThatHangsIsStoppedAndMadeAgain) {
  for (const auto* script : {"for(;;);", "for(;;)alert('again and again');"}) {
    preview(script);
    ASSERT_TRUE(tells("The page does not answer.")) << script;
    EXPECT_TRUE(isUsable()) << script;
    QTest::keyClick(button("Stop"), Qt::Key_Space);
    ASSERT_TRUE(tells("The page was stopped.")) << script;
    run.main().editor.setCompileTarget("", "");
    QTest::mouseClick(button("Reload"), Qt::LeftButton);
    EXPECT_TRUE(
        waitFor([&] { return run.evaluate(window(), "typeof nbrBuildMenu").toString() == "function"; }));
  }
}

TEST_F(Isolation, APageThatTakesTooMuchMemoryIsEnded) {
  preview("var a=[];setInterval(function(){a.push(new Uint8Array(1<<26).fill(1))},1);");
  ASSERT_TRUE(tells("The page was ended: it took more than 1 GiB of memory."));
  EXPECT_TRUE(isUsable());
  EXPECT_EQ(titleOf("document.title='again'"), "again");
}

}  // namespace
}  // namespace nimbrel
