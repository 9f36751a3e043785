#include "desktop/desktop_opener.h"

#include <QDesktopServices>
#include <QUrl>

#include "desktop/display_text.h"

namespace nimbrel {

void DesktopOpener::ShellExecuteA(std::string_view /*verb*/, std::string_view file,
                                  std::string_view /*parameters*/, std::string_view /*folder*/,
                                  int /*showCommand*/) {
  const bool isAddress = file.find("://") != std::string_view::npos || file.starts_with("mailto:");
  QDesktopServices::openUrl(isAddress ? QUrl(toDisplay(file)) : QUrl::fromLocalFile(toDisplayPath(file)));
}

}  // namespace nimbrel
