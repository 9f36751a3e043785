#include "platform/posix/program_folder.h"

#include <cstdio>
#include <future>
#include <gtest/gtest.h>

#include "support/temporary_folder.h"

namespace nimbrel {
namespace {

namespace fs = std::filesystem;

/// An installed program, `bin` and `share/nimbrel`, and a user with an empty home folder.
class ProgramFolder : public testing::Test {
 protected:
  ProgramFolder() {
    fs::create_directories(root_ / "bin");
    fs::create_directories(root_ / "share/nimbrel/libraries");
    root_.write("share/nimbrel/libraries/nbrlib0.js", "library");
    fs::copy_file(PRINT_PROGRAM_FOLDER, root_ / "bin/program");
  }

  /// Runs the program with these environment variables and returns its output.
  std::string start(const std::string& variables, const std::string& word = "") {
    const auto command =
        "env -i HOME=" + path("home") + " " + variables + " " + path("bin/program") + " " + word;
    FILE* pipe = ::popen(command.c_str(), "r");
    std::string line(4096, '\0');
    line.resize(std::fread(line.data(), 1, line.size(), pipe));
    ::pclose(pipe);
    if (line.ends_with('\n')) line.pop_back();
    return line;
  }

  std::string path(const std::string& name) const { return (root_ / name).string(); }

  TemporaryFolder root_;
  const std::string copy_ = "home/.local/share/nimbrel";
};

TEST_F(ProgramFolder, IsThatOfTheOptionThenOfTheEnvironmentThenOfTheProgram) {
  EXPECT_EQ(start("NIMBREL_HOME=/elsewhere", "/asked"), "/asked");
  EXPECT_EQ(start("NIMBREL_HOME=/elsewhere"), "/elsewhere");
  fs::create_directories(root_ / "bin/libraries");
  EXPECT_EQ(start("NIMBREL_HOME="), fs::canonical(root_ / "bin"));
}

TEST_F(ProgramFolder, IsElseTheUsersCopyWhichTheFirstStartCreates) {
  fs::create_directories(root_ / "data/nimbrel");
  root_.write("data/nimbrel/own.nbs", "the user's");
  EXPECT_EQ(start("XDG_DATA_HOME=" + path("data")), path("data/nimbrel"));
  EXPECT_EQ(root_.read("data/nimbrel/libraries/nbrlib0.js"), "library");
  EXPECT_EQ(root_.read("data/nimbrel/own.nbs"), "the user's");
  // A copy that was cut off is made again.
  fs::create_directories(root_ / "home/.local/share/nimbrel.new/libraries");
  root_.write("home/.local/share/nimbrel.new/libraries/half.js", "half");
  EXPECT_EQ(start(""), path(copy_));
  EXPECT_EQ(root_.read(copy_ + "/libraries/nbrlib0.js"), "library");
  EXPECT_FALSE(fs::exists(root_ / (copy_ + "/libraries/half.js")));
}

TEST_F(ProgramFolder, IsUpdatedExceptForFilesThatTheUserHasChanged) {
  const std::string product = "share/nimbrel/";
  for (const auto* file : {"kept.html", "changed.html", "deleted.html", "gone.html"}) {
    root_.write(product + file, "old");
  }
  start("");
  root_.write(copy_ + "/changed.html", "the user's");
  root_.write(copy_ + "/own.nbs", "the user's");
  fs::remove(root_ / (copy_ + "/deleted.html"));

  for (const auto* file : {"kept.html", "changed.html", "deleted.html", "added.html"}) {
    root_.write(product + file, "new");
  }
  fs::remove(root_ / (product + "gone.html"));
  start("");
  EXPECT_EQ(root_.read(copy_ + "/kept.html"), "old") << "the same version changes nothing";
  const auto list = root_.read(copy_ + "/.installed");
  root_.write(copy_ + "/.installed", "1" + list.substr(list.find('\n')));
  start("");
  for (const auto* file : {"/kept.html", "/added.html"}) EXPECT_EQ(root_.read(copy_ + file), "new");
  for (const auto* file : {"/changed.html", "/own.nbs"}) EXPECT_EQ(root_.read(copy_ + file), "the user's");
  for (const auto* file : {"/deleted.html", "/gone.html"}) EXPECT_FALSE(fs::exists(root_ / (copy_ + file)));
}

TEST_F(ProgramFolder, IsCreatedOnceBySeveralProcesses) {
  fs::create_directories(root_ / "share/nimbrel/gallery");
  for (int i = 0; i < 300; ++i) root_.write("share/nimbrel/gallery/" + std::to_string(i), "style");
  std::vector<std::future<std::string>> starts;
  for (int i = 0; i < 4; ++i) starts.push_back(std::async(std::launch::async, [this] { return start(""); }));
  for (auto& one : starts) EXPECT_EQ(one.get(), path(copy_));
  EXPECT_EQ(root_.read(copy_ + "/gallery/299"), "style");
}

}  // namespace
}  // namespace nimbrel
