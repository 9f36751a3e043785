#pragma once

#include <cstdlib>
#include <filesystem>
#include <gmock/gmock.h>
#include <sstream>

#include "cli/nbrc.h"
#include "model/structure.h"
#include "persistence/menu_file.h"
#include "platform/posix/host_file_system.h"
#include "platform/posix/host_paths.h"

namespace nimbrel {

/// What a call gave.
struct Outcome {
  int status;
  std::string out;
  std::string err;
};

/// Calls `nbrc` in an empty folder of its own, which is the current one. `home` in it is a program's folder.
class NbrcTest : public testing::Test {
 protected:
  NbrcTest() {
    std::filesystem::create_directories(here / "home/libraries");
    std::filesystem::current_path(here);
    write("home/dot.gif", "GIF89a");
    for (char n = '0'; n < '6'; ++n) write(std::string("home/libraries/nbrlib") + n + ".js", "//");
  }
  ~NbrcTest() override {
    std::filesystem::current_path("/");
    std::filesystem::remove_all(here);
  }

  Outcome run(std::vector<std::string> words) { return runOn(files, std::move(words)); }
  static Outcome runOn(FileSystem& files, std::vector<std::string> words, bool errIsTerminal = false,
                       const std::string& input = "") {
    std::ostringstream out, err;
    MenuInputs menus;
    std::istringstream in(input);
    const int status = nbrc(Console(in, out, err, errIsTerminal), files, std::move(words), menus);
    return {status, out.str(), err.str()};
  }

  void write(const std::string& path, std::string_view bytes) { files.replace(fromHostPath(path), bytes); }
  void save(const std::string& path, const Document& document) {
    SaveMenuFile(files, fromHostPath(path), document);
  }
  std::string read(const std::string& path) { return files.read(fromHostPath(path)); }
  std::string absolute(const std::string& path) const { return (here / path).string(); }

  /// "nbrc: FILE: reason", for a file in this folder.
  std::string fault(const std::string& path, const std::string& reason) const {
    return "nbrc: " + absolute(path) + ": " + reason + "\n";
  }

  static std::filesystem::path newFolder() {
    std::string path = std::filesystem::temp_directory_path() / "nimbrel-test-XXXXXX";
    return ::mkdtemp(path.data());
  }

  const std::filesystem::path here = newFolder();
  HostFileSystem files;
};

}  // namespace nimbrel
