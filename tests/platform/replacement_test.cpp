#include "platform/posix/replacement.h"

#include <chrono>
#include <gmock/gmock.h>
#include <random>
#include <signal.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
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

TEST_F(Replacing, ThatIsKilledLeavesTheOldOrTheNewFile) {
  constexpr std::size_t size = 300'000;
  replace("a", std::string(size, 'a'));
  std::mt19937 engine(1);
  for (int round = 0; round < 15; ++round) {
    const pid_t child = ::fork();
    if (child == 0) {
      for (char c = 'a';; c = c == 'z' ? 'a' : static_cast<char>(c + 1)) replace("a", std::string(size, c));
    }
    std::this_thread::sleep_for(std::chrono::microseconds(engine() % 20'000));
    ::kill(child, SIGKILL);
    ::waitpid(child, nullptr, 0);
    const auto bytes = folder_.read("a");
    ASSERT_EQ(bytes.size(), size);
    ASSERT_EQ(bytes.find_first_not_of(bytes[0]), std::string::npos);
  }
}

}  // namespace
}  // namespace nimbrel
