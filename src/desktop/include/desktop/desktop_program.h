#pragma once

#include <memory>
#include <string>

#include "desktop/desktop_opener.h"
#include "desktop/file_types.h"
#include "desktop/help_window.h"
#include "desktop/main_view.h"
#include "desktop/qt_asker.h"
#include "desktop/served_pages.h"
#include "desktop/system_clipboard.h"
#include "desktop/termination.h"
#include "desktop/user_settings.h"
#include "platform/posix/host_file_system.h"

namespace nimbrel {

/// The whole desktop program: the ports to this system, the main window and its view.
class DesktopProgram {
 public:
  /// `programFolder` is a host path.
  explicit DesktopProgram(const std::string& programFolder);
  DesktopProgram(const DesktopProgram&) = delete;
  DesktopProgram& operator=(const DesktopProgram&) = delete;
  ~DesktopProgram();

  /// `commandLine` is the path of a menu file, or empty.
  void start(const std::string& commandLine);

  frmMain& main() { return main_; }
  MainView& view() { return view_; }
  HelpWindow& help() { return help_; }

 private:
  HostFileSystem files_;
  OverlayFileSystem previews_{files_};
  ServedPages pages_;
  QtAsker asker_;
  UserSettings settings_;
  DesktopOpener opener_;
  HelpWindow help_;
  FileTypes fileTypes_;
  SystemClipboard clipboard_;
  Ports ports_;
  frmMain main_;
  MainView view_;
  Termination termination_;
};

}  // namespace nimbrel
