#include "platform/posix/replacement.h"

#include <chrono>
#include <fcntl.h>
#include <gmock/gmock.h>
#include <random>
#include <signal.h>
#include <sys/file.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <sys/xattr.h>
#include <thread>
#include <unistd.h>

#include "platform/posix/host_file_system.h"
#include "platform/posix/host_paths.h"
#include "support/temporary_folder.h"

namespace nimbrel {
namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;

class Replacing : public testing::Test {
 protected:
  void replace(const std::string& name, std::string_view bytes) {
    files_.replace(fromHostPath((folder_ / name).string()), bytes);
  }

  std::vector<std::string> names() const {
    std::vector<std::string> names;
    for (const auto& entry : fs::directory_iterator(folder_ / "")) names.push_back(entry.path().filename());
    std::ranges::sort(names);
    return names;
  }

  mode_t mode(const std::string& name) const {
    struct stat status {};
    ::stat((folder_ / name).c_str(), &status);
    return status.st_mode & 07777;
  }

  TemporaryFolder folder_;
  HostFileSystem files_;
};

TEST_F(Replacing, KeepsTheModeOrUsesTheUmask) {
  folder_.write("a", "a longer text than the new one");
  ::chmod((folder_ / "a").c_str(), 0604);
  const mode_t mask = ::umask(027);
  for (const auto* name : {"a", "b"}) replace(name, "new");
  EXPECT_EQ(::umask(mask), 027U) << "the umask is not changed";
  for (const auto* name : {"a", "b"}) EXPECT_EQ(folder_.read(name), "new");
  EXPECT_EQ(mode("a"), 0604U);
  EXPECT_EQ(mode("b"), 0640U);
  EXPECT_THAT(names(), ElementsAre("a", "b"));
}

TEST_F(Replacing, FollowsLinks) {
  fs::create_directory(folder_ / "site");
  folder_.write("site/a", "old");
  fs::create_symlink("site/a", folder_ / "near");
  fs::create_symlink(folder_ / "near", folder_ / "far");
  fs::create_symlink("site/new", folder_ / "dangling");
  replace("far", "new");
  replace("dangling", "made");
  EXPECT_EQ(folder_.read("site/a"), "new");
  EXPECT_EQ(folder_.read("site/new"), "made");
  EXPECT_TRUE(fs::is_symlink(folder_ / "near") && fs::is_symlink(folder_ / "far"));
}

TEST_F(Replacing, IsRefusedForReadOnlyFilesAndOtherThanFiles) {
  folder_.write("read-only", "old");
  ::chmod((folder_ / "read-only").c_str(), 0444);
  fs::create_directory(folder_ / "folder");
  ASSERT_EQ(::mkfifo((folder_ / "pipe").c_str(), 0600), 0);
  fs::create_symlink("circle", folder_ / "circle");
  for (const auto* name : {"read-only", "folder", "pipe", "circle", "missing/a"}) {
    EXPECT_THROW(replace(name, "new"), FileError) << name;
  }
  EXPECT_EQ(folder_.read("read-only"), "old");
  EXPECT_THAT(names(), ElementsAre("circle", "folder", "pipe", "read-only"));
}

TEST_F(Replacing, OnAFullDiskLeavesTheOldFileAndNothingElse) {
  folder_.write("a", "old");
  const pid_t child = ::fork();
  if (child == 0) {
    ::signal(SIGXFSZ, SIG_IGN);
    const rlimit limit{100'000, 100'000};
    ::setrlimit(RLIMIT_FSIZE, &limit);
    try {
      replace("a", std::string(1'000'000, 'x'));
    } catch (const FileError& error) {
      ::_exit(error.finding().path.ends_with("\\a") ? 0 : 1);
    }
    ::_exit(2);
  }
  int status = 0;
  ::waitpid(child, &status, 0);
  EXPECT_EQ(status, 0);
  EXPECT_EQ(folder_.read("a"), "old");
  EXPECT_THAT(names(), ElementsAre("a"));
}

TEST_F(Replacing, KeepsOtherNamesAndExtendedAttributes) {
  folder_.write("a", "old and longer");
  fs::create_hard_link(folder_ / "a", folder_ / "b");
  folder_.write("c", "old");
  const bool hasAttributes = ::setxattr((folder_ / "c").c_str(), "user.note", "kept", 4, 0) == 0;
  for (const auto* name : {"a", "c"}) replace(name, "new");
  EXPECT_EQ(folder_.read("b"), "new");
  std::string note(4, ' ');
  if (hasAttributes) ::getxattr((folder_ / "c").c_str(), "user.note", note.data(), note.size());
  EXPECT_EQ(note, hasAttributes ? "kept" : "    ");
  EXPECT_THAT(names(), ElementsAre("a", "b", "c"));
}

/// Runs a child process, whose visit of the folder is its first, and returns its exit status.
template <class F>
int inChild(F action) {
  const pid_t child = ::fork();
  if (child == 0) ::_exit(action());
  int status = 0;
  ::waitpid(child, &status, 0);
  return status;
}

TEST_F(Replacing, RemovesOnlyWhatDeadProcessesOfOursHaveLeft) {
  for (const auto* name :
       {"a", ".nimbrel-1-0", ".nimbrel-1-1.backup", ".nimbrel-notes", ".nimbrel-1-2.txt"}) {
    folder_.write(name, "left");
  }
  folder_.write(".nimbrel-99999-0", "in use");
  const Handle used(::open((folder_ / ".nimbrel-99999-0").c_str(), O_RDONLY));
  ASSERT_EQ(::flock(used.get(), LOCK_EX), 0);
  EXPECT_EQ(inChild([this] {
              replace("a", "new");
              return 0;
            }),
            0);
  EXPECT_THAT(names(), ElementsAre(".nimbrel-1-2.txt", ".nimbrel-99999-0", ".nimbrel-notes", "a"));
}

/// As after a loss of power: the backup is whole, and the file has parts of both sides, in any order.
TEST_F(Replacing, PutsBackWhatWasBeingWrittenInPlaceUnlessItWasChangedSince) {
  const auto after = [&](const std::string& bytes) {
    folder_.write("a", bytes);
    fs::create_hard_link(folder_ / "a", folder_ / "b");
    folder_.write(".nimbrel-1-0.backup", "a/6/8\noooooonnnnnnnn");
    const int status = inChild([this] {
      const auto read = files_.read(fromHostPath((folder_ / "b").string()));
      return read == "oooooo" ? 1 : read == "nnnnnnnn" ? 2 : read == "edited" ? 3 : 4;
    });
    fs::remove(folder_ / "b");
    const bool isLeft = fs::remove(folder_ / ".nimbrel-1-0.backup");
    return std::pair(WEXITSTATUS(status), isLeft);
  };
  EXPECT_EQ(after("nnoonn"), std::pair(1, false));
  EXPECT_EQ(after("nnnoo"), std::pair(1, false));
  EXPECT_EQ(after("nnnnnnnn"), std::pair(2, false));
  EXPECT_EQ(after("edited"), std::pair(3, true));
}

TEST_F(Replacing, ThatIsKilledLeavesTheOldOrTheNewFile) {
  constexpr std::size_t size = 300'000;
  replace("a", std::string(size, 'a'));
  std::mt19937 engine(1);
  for (int round = 0; round < 30; ++round) {
    if (round == 15)
      fs::create_hard_link(folder_ / "a", folder_ / "b");  // from here on it is written in place
    const pid_t child = ::fork();
    if (child == 0) {
      for (char c = 'a';; c = c == 'z' ? 'a' : static_cast<char>(c + 1)) replace("a", std::string(size, c));
    }
    std::this_thread::sleep_for(std::chrono::microseconds(engine() % 20'000));
    ::kill(child, SIGKILL);
    ::waitpid(child, nullptr, 0);
    inChild([this] { return files_.read(fromHostPath((folder_ / "a").string())).empty() ? 1 : 0; });
    const auto bytes = folder_.read("a");
    ASSERT_EQ(bytes.size(), size);
    ASSERT_EQ(bytes.find_first_not_of(bytes[0]), std::string::npos);
  }
  inChild([this] {
    replace("a", "last");
    return 0;
  });
  EXPECT_THAT(names(), ElementsAre("a", "b"));
}

}  // namespace
}  // namespace nimbrel
