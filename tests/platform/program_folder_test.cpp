#include "platform/posix/program_folder.h"

#include <cstdio>
#include <future>
#include <gtest/gtest.h>

#include "support/temporary_folder.h"

namespace nimbrel {
namespace {

namespace fs = std::filesystem;

/// An installed program: `bin` beside `share/nimbrel`, and an author's empty home.
class ProgramFolder : public testing::Test {
 protected:
  ProgramFolder() {
    fs::create_directories(root_ / "bin");
    fs::create_directories(root_ / "share/nimbrel/libraries");
    root_.write("share/nimbrel/libraries/nbrlib0.js", "library");
    fs::copy_file(PRINT_PROGRAM_FOLDER, root_ / "bin/program");
  }

  /// What a start with these variables prints.
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
};

TEST_F(ProgramFolder, IsTheOneAskedForAheadOfTheEnvironments) {
  EXPECT_EQ(start("NIMBREL_HOME=/elsewhere", "/asked"), "/asked");
  EXPECT_EQ(start("NIMBREL_HOME=/elsewhere"), "/elsewhere");
}

TEST_F(ProgramFolder, IsThatOfTheProgramIfItHoldsLibraries) {
  fs::create_directories(root_ / "bin/libraries");
  EXPECT_EQ(start("NIMBREL_HOME="), fs::canonical(root_ / "bin"));
}

TEST_F(ProgramFolder, ElseIsThePerUserFolderThatTheFirstStartFills) {
  const auto perUser = path("home/.local/share/nimbrel");
  EXPECT_EQ(start(""), perUser);
  const auto library = "home/.local/share/nimbrel/libraries/nbrlib0.js";
  EXPECT_EQ(root_.read(library), "library");
  root_.write(library, "the author's own");
  EXPECT_EQ(start(""), perUser);
  EXPECT_EQ(root_.read(library), "the author's own");
  EXPECT_EQ(start("XDG_DATA_HOME=" + path("data")), path("data/nimbrel"));
  EXPECT_TRUE(fs::exists(root_ / "data/nimbrel/libraries"));
}

TEST_F(ProgramFolder, ANewerVersionLeavesTheAuthorsWorkAlone) {
  const std::string product = "share/nimbrel/";
  const std::string perUser = "home/.local/share/nimbrel/";
  for (const auto* file : {"kept.html", "changed.html", "deleted.html", "gone.html"}) {
    root_.write(product + file, "old");
  }
  start("");
  root_.write(perUser + "changed.html", "the author's");
  root_.write(perUser + "own.nbs", "the author's");
  fs::remove(root_ / (perUser + "deleted.html"));

  for (const auto* file : {"kept.html", "changed.html", "deleted.html", "added.html"}) {
    root_.write(product + file, "new");
  }
  fs::remove(root_ / (product + "gone.html"));
  start("");
  EXPECT_EQ(root_.read(perUser + "kept.html"), "old") << "the same version changes nothing";
  auto list = root_.read(perUser + ".installed");
  root_.write(perUser + ".installed", "1" + list.substr(list.find('\n')));
  start("");
  EXPECT_EQ(root_.read(perUser + "kept.html"), "new");
  EXPECT_EQ(root_.read(perUser + "added.html"), "new");
  EXPECT_EQ(root_.read(perUser + "changed.html"), "the author's");
  EXPECT_EQ(root_.read(perUser + "own.nbs"), "the author's");
  EXPECT_FALSE(fs::exists(root_ / (perUser + "deleted.html")) || fs::exists(root_ / (perUser + "gone.html")));
}

TEST_F(ProgramFolder, TakesUpAFillingThatWasCutOff) {
  fs::create_directories(root_ / "home/.local/share/nimbrel.new/libraries");
  root_.write("home/.local/share/nimbrel.new/libraries/half.js", "half");
  start("");
  EXPECT_TRUE(fs::exists(root_ / "home/.local/share/nimbrel/libraries/nbrlib0.js"));
  EXPECT_FALSE(fs::exists(root_ / "home/.local/share/nimbrel/libraries/half.js"));
}

TEST_F(ProgramFolder, WithoutLibrariesGetsWhatItLacks) {
  const std::string perUser = "home/.local/share/nimbrel/";
  fs::create_directories(root_ / perUser);
  root_.write("share/nimbrel/tips.txt", "tips");
  root_.write(perUser + "tips.txt", "the author's");
  start("");
  EXPECT_EQ(root_.read(perUser + "libraries/nbrlib0.js"), "library");
  EXPECT_EQ(root_.read(perUser + "tips.txt"), "the author's");
}

TEST_F(ProgramFolder, IsFilledOnceBySeveralStartsAtOnce) {
  fs::create_directories(root_ / "share/nimbrel/gallery");
  for (int i = 0; i < 300; ++i) root_.write("share/nimbrel/gallery/" + std::to_string(i), "style");
  std::vector<std::future<std::string>> starts;
  for (int i = 0; i < 4; ++i) starts.push_back(std::async(std::launch::async, [this] { return start(""); }));
  for (auto& one : starts) EXPECT_EQ(one.get(), path("home/.local/share/nimbrel"));
  EXPECT_EQ(root_.read("home/.local/share/nimbrel/gallery/299"), "style");
}

}  // namespace
}  // namespace nimbrel
