// Does a page of a stranger reach the network? The same page is shown in an ordinary browser, in a process of its own, and
// as a preview.
#include <QProcess>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTimer>
#include <QUdpSocket>
#include <QWebEngineView>
#include <gmock/gmock.h>
#include <set>

#include "desktop/display_text.h"
#include "support/desktop_run.h"

namespace nimbrel {
namespace {

/// Everything a page can send by. The title becomes "done" when each attempt has ended.
constexpr const char* attack = R"(
(function(){
  var address = '127.0.0.1:HTTP/', base = 'http://' + address, pending = { load: 1 };
  function ended(name) {
    delete pending[name];
    document.title = Object.keys(pending).join(' ') || 'done';
  }
  function attempt(name, start) {
    pending[name] = 1;
    try { start(ended.bind(null, name)); } catch (fault) { ended(name); }
  }
  function element(name, values) {
    attempt(name, function (over) {
      var made = document.createElement(name);
      made.onload = made.onerror = over;
      for (var key in values) made[key] = values[key];
      document.documentElement.appendChild(made);
    });
  }
  element('img', { src: base + 'image' });
  element('script', { src: base + 'script' });
  element('link', { rel: 'stylesheet', href: base + 'style' });
  element('iframe', { src: base + 'frame' });
  attempt('font', function (over) { new FontFace('x', 'url(' + base + 'font)').load().then(over, over); });
  attempt('fetch', function (over) { fetch(base + 'fetch', { mode: 'no-cors' }).then(over, over); });
  attempt('request', function (over) {
    var request = new XMLHttpRequest();
    request.onloadend = over;
    request.open('GET', base + 'request');
    request.send();
  });
  attempt('beacon', function (over) { navigator.sendBeacon(base + 'beacon', 'x'); over(); });
  attempt('events', function (over) { new EventSource(base + 'events').onerror = over; });
  attempt('socket', function (over) { new WebSocket('ws://' + address + 'socket').onerror = over; });
  attempt('form', function (over) {
    var form = document.createElement('form'), target = document.createElement('iframe');
    target.name = 'target';
    document.documentElement.appendChild(target);
    document.documentElement.appendChild(form);
    form.action = base + 'form';
    form.target = 'target';
    form.submit();
    over();
  });
  attempt('peer', function (over) {
    var empty = document.createElement('iframe');
    document.documentElement.appendChild(empty);
    var user = { username: 'secret', credential: 'x' };
    var peer = new empty.contentWindow.RTCPeerConnection({ iceServers: [
      { urls: 'stun:127.0.0.1:UDP' }, { urls: 'turn:127.0.0.1:UDP', username: 'secret', credential: 'x' },
      { urls: 'turn:127.0.0.1:TURN?transport=tcp', username: 'secret', credential: 'x' }] });
    peer.onicegatheringstatechange = function () { if (peer.iceGatheringState === 'complete') over(); };
    peer.createDataChannel('x');
    peer.createOffer().then(function (offer) { return peer.setLocalDescription(offer); }).catch(over);
  });
  window.addEventListener('load', function () { ended('load'); });
})();
)";

using Arrived = std::set<std::string>;

/// Servers on this machine that note what arrives.
class Listeners {
 public:
  Listeners() {
    http_.listen(QHostAddress::LocalHost);
    turn_.listen(QHostAddress::LocalHost);
    udp_.bind(QHostAddress::LocalHost);
    QObject::connect(&http_, &QTcpServer::newConnection, [this] { answer(*http_.nextPendingConnection()); });
    QObject::connect(&turn_, &QTcpServer::newConnection, [this] { arrived.insert("turn"); });
    QObject::connect(&udp_, &QUdpSocket::readyRead, [this] {
      arrived.insert("datagram");
      while (udp_.hasPendingDatagrams()) udp_.readDatagram(nullptr, 0);
    });
  }

  QString script() const {
    return QString(attack)
        .replace("HTTP", QString::number(http_.serverPort()))
        .replace("UDP", QString::number(udp_.localPort()))
        .replace("TURN", QString::number(turn_.serverPort()));
  }

  Arrived arrived;

 private:
  void answer(QTcpSocket& socket) {
    QObject::connect(&socket, &QTcpSocket::readyRead, [this, &socket] {
      const auto path = socket.readLine().split(' ').value(1).mid(1);
      if (!path.isEmpty()) arrived.insert(path.split('?').first().toStdString());
      socket.readAll();
      socket.write("HTTP/1.1 404 No\r\nContent-Length: 0\r\nConnection: close\r\n\r\n");
      socket.disconnectFromHost();
    });
  }

  QTcpServer http_;
  QTcpServer turn_;
  QUdpSocket udp_;
};

TEST(Network, APreviewReachesNothingThatAnOrdinaryBrowserReaches) {
  Listeners listeners;
  QProcess ordinary;
  auto environment = QProcessEnvironment::systemEnvironment();
  environment.insert("QTWEBENGINE_CHROMIUM_FLAGS", "--disable-gpu");
  ordinary.setProcessEnvironment(environment);
  ordinary.setProcessChannelMode(QProcess::ForwardedErrorChannel);
  ordinary.start(QCoreApplication::applicationFilePath(), {"--ordinary"});
  ordinary.write(listeners.script().toUtf8());
  ordinary.closeWriteChannel();
  ASSERT_TRUE(waitFor([&] { return ordinary.state() == QProcess::NotRunning; }));
  ASSERT_EQ(ordinary.exitCode(), 0);
  EXPECT_THAT(listeners.arrived,
              testing::IsSupersetOf({"image", "script", "style", "frame", "font", "fetch", "request",
                                     "beacon", "events", "socket", "form", "datagram", "turn"}));

  listeners.arrived.clear();
  DesktopRun run;
  run.start();
  run.main().editor.setCompileTarget(
      fromDisplay("';" + listeners.script().simplified() + "window.wasRun=1;//"), "");
  run.run("mnuToolsPreview");
  const auto title = [&] { return run.evaluate(run.view().preview(), "document.title").toString(); };
  ASSERT_TRUE(waitFor([&] { return title() == "done"; })) << title().toStdString();
  run.evaluate(run.view().preview(), QString(R"(location = 'http://127.0.0.1/leave')"));
  EXPECT_EQ(title(), "done") << "the page was left";
  EXPECT_THAT(listeners.arrived, testing::IsEmpty());
}

/// Shows the script of the standard input in an ordinary browser, until it has ended.
int showOrdinary(int argc, char** argv) {
  QApplication application(argc, argv);
  QFile input;
  if (!input.open(stdin, QIODevice::ReadOnly)) return EXIT_FAILURE;
  QWebEngineView view;
  QObject::connect(&view, &QWebEngineView::titleChanged, [](const QString& title) {
    if (title == "done") QCoreApplication::exit(EXIT_SUCCESS);
  });
  view.setHtml("<script>" + input.readAll() + "</script>", QUrl("http://127.0.0.1/"));
  view.show();
  return QCoreApplication::exec();
}

}  // namespace
}  // namespace nimbrel

int main(int argc, char** argv) {
  if (argc == 2 && std::string_view(argv[1]) == "--ordinary") return nimbrel::showOrdinary(argc, argv);
  const auto application = nimbrel::offscreenApplication(argc, argv);
  testing::InitGoogleMock(&argc, argv);
  return RUN_ALL_TESTS();
}
