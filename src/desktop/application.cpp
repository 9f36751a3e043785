#include "desktop/application.h"

#include <QApplication>
#include <unistd.h>

#include "desktop/icons.h"
#include "desktop/served_pages.h"

namespace nimbrel {
namespace {

/// What blocking each request does not cover: WebRTC sends UDP and TCP past it, and its servers' names are looked up. All
/// TCP goes to a proxy that does not exist, and no name has an address. They come last and so win over the user's flags.
constexpr const char* withoutNetwork =
    "--force-webrtc-ip-handling-policy=disable_non_proxied_udp --proxy-server=http://127.0.0.1:9 "
    "--proxy-bypass-list=<-loopback> --host-resolver-rules=\"MAP * ~NOTFOUND\"";

}  // namespace

void prepareBrowser() {
  // The browser does not start as root unless its sandbox is off.
  if (geteuid() == 0) qputenv("QTWEBENGINE_DISABLE_SANDBOX", "1");
  constexpr const char* flags = "QTWEBENGINE_CHROMIUM_FLAGS";
  qputenv(flags, qgetenv(flags) + ' ' + withoutNetwork);
  ServedPages::registerScheme();
  QCoreApplication::setAttribute(Qt::AA_ShareOpenGLContexts);
}

void setUpApplication() {
  QApplication::setApplicationName("Nimbrel");
  // No display name: window managers would append it to our titles.
  QApplication::setDesktopFileName("example.nimbrel.Nimbrel");
  QApplication::setQuitOnLastWindowClosed(false);
  QApplication::setWindowIcon(applicationIcon());
}

}  // namespace nimbrel
