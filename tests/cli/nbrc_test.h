#pragma once

#include <filesystem>
#include <gmock/gmock.h>
#include <sstream>

#include "cli/nbrc.h"
#include "model/structure.h"
#include "persistence/menu_file.h"
#include "platform/posix/host_file_system.h"
#include "platform/posix/host_paths.h"
#include "support/temporary_folder.h"

namespace nimbrel {

struct Outcome {
  int status;
  std::string out;
  std::string err;

  bool operator==(const Outcome&) const = default;
  friend std::ostream& operator<<(std::ostream& to, const Outcome& outcome) {
    return to << outcome.status << '\n' << outcome.out << outcome.err;
  }
};

/// Calls `nbrc` in a new folder, which becomes the current one. Its folder `home` is a program folder.
class NbrcTest : public testing::Test, protected TemporaryFolder {
 protected:
  NbrcTest() {
    std::filesystem::current_path(here);
    std::filesystem::create_directories("home/libraries");
    write("home/dot.gif", "GIF89a");
    for (char n = '0'; n < '6'; ++n) write(std::string("home/libraries/nbrlib") + n + ".js", "//");
  }
  ~NbrcTest() override { std::filesystem::current_path("/"); }

  Outcome run(std::vector<std::string> words) { return runOn(files, std::move(words)); }
  static Outcome runOn(FileSystem& files, std::vector<std::string> words, bool errIsTerminal = false) {
    std::ostringstream out, err;
    MenuInputs menus;
    std::istringstream in;
    const int status = nbrc(Console(in, out, err, errIsTerminal), files, std::move(words), menus);
    return {status, out.str(), err.str()};
  }

  void save(const std::string& path, const Document& document) {
    SaveMenuFile(files, fromHostPath(path), document);
  }

  /// The line on standard error for a file in this folder.
  std::string fault(const std::string& path, const std::string& reason) const {
    return "nbrc: " + (here / path).string() + ": " + reason + "\n";
  }

  const std::filesystem::path here = (*this / "home").parent_path();
  HostFileSystem files;
};

}  // namespace nimbrel
