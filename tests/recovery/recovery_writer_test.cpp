#include "recovery/recovery_writer.h"

#include <csignal>
#include <gmock/gmock.h>
#include <sys/wait.h>
#include <unistd.h>

#include "platform/memory/memory_file_system.h"
#include "platform/posix/host_file_system.h"
#include "platform/posix/host_paths.h"
#include "support/temporary_folder.h"

namespace nimbrel {
namespace {

/// A change that makes the whole menu one text.
MenuChange textOf(std::string text) {
  return {.isWhole = true, .head = std::move(text), .records = {}, .order = std::vector<std::string>()};
}

class Recovery : public testing::Test, protected TemporaryFolder {
 protected:
  std::vector<RecoveryFolder> orphans() { return RecoveryFolder::orphans(files, state); }

  HostFileSystem files;
  const std::string state = fromHostPath((*this / "state").string());
};

TEST_F(Recovery, AFileHoldsItsHeadWhateverThePathsAre) {
  const RecoveryHead head{"C:\\a\n1:", "b:\n.nbr", KnownFile("C:\\other", std::size_t{7}), true, -5};
  const auto bytes = recoveryHeadText(head) + "menu\n3:";
  const auto file = readRecoveryFile(bytes);
  ASSERT_TRUE(file);
  EXPECT_EQ(recoveryHeadText(file->head), recoveryHeadText(head));
  EXPECT_EQ(file->menu, "menu\n3:");
  for (std::size_t size = 0; size < recoveryHeadText(head).size(); ++size)
    EXPECT_FALSE(readRecoveryFile(bytes.substr(0, size))) << size;
}

TEST_F(Recovery, OnlyFoldersWithoutAProgramAreOrphansAndEachOfThemOnce) {
  auto running = RecoveryFolder::create(files, state);
  running.write("x");
  {
    auto ended = RecoveryFolder::create(files, state);
    ended.write(recoveryHeadText({.name = "ended"}));
    RecoveryFolder::create(files, state);  // ended before it wrote
  }
  auto found = orphans();
  ASSERT_EQ(found.size(), 1);
  EXPECT_EQ(found.front().read()->head.name, "ended");
  EXPECT_EQ(orphans().size(), 0);  // this program has it now
  found.front().remove();
  running.remove();
  EXPECT_THAT(files.foldersIn(state + "\\recovery"), testing::IsEmpty());
}

TEST_F(Recovery, AWriterGoesOnWithAnOrphanAndDiscardsIt) {
  { RecoveryWriter(files, state).post({.name = "first"}, textOf("1")); }
  {
    RecoveryWriter writer(files, state);
    writer.adopt(std::move(orphans().front()));
    writer.post({.name = "second"}, textOf("2"));
  }
  auto found = orphans();
  ASSERT_EQ(found.size(), 1);
  EXPECT_EQ(found.front().read()->menu, "2");
  RecoveryWriter writer(files, state);
  writer.adopt(std::move(found.front()));
  found.clear();
  writer.discard();
  EXPECT_THAT(files.foldersIn(state + "\\recovery"), testing::IsEmpty());
}

TEST_F(Recovery, AFailureIsToldOnceAndTheNextChangeIsWritten) {
  MemoryFileSystem disk;
  disk.folders.emplace("C:");
  std::optional<RecoveryWriter> writer(std::in_place, disk, "C:\\state");
  const auto wait = [](auto time) { std::this_thread::sleep_for(time); };
  disk.failsNow = [] { return true; };
  writer->post({}, textOf("1"));
  while (!writer->takeFailure()) wait(std::chrono::milliseconds(10));
  writer->post({}, textOf("2"));
  wait(RecoveryWriter::gathering + std::chrono::milliseconds(200));
  EXPECT_FALSE(writer->takeFailure());
  disk.failsNow = nullptr;
  writer->post({}, textOf("3"));
  writer.reset();
  EXPECT_THAT(disk.files.begin()->second, testing::EndsWith("3"));
}

/// bench/recovery_trial.py does the same with the whole program.
TEST_F(Recovery, AKilledProgramLeavesAWholeFile) {
  constexpr std::size_t size = 3'000'000;
  for (int kill = 0; kill < 3; ++kill) {
    const auto child = ::fork();
    if (child == 0) {
      RecoveryWriter writer(files, state);
      for (char letter = 'a';; letter = letter == 'z' ? 'a' : static_cast<char>(letter + 1)) {
        writer.post({}, textOf(std::string(size, letter)));
        std::this_thread::sleep_for(std::chrono::milliseconds(5));
      }
    }
    std::this_thread::sleep_for(2 * RecoveryWriter::gathering + std::chrono::milliseconds(7 * kill));
    ::kill(child, SIGKILL);
    ::waitpid(child, nullptr, 0);
    auto found = orphans();
    ASSERT_EQ(found.size(), 1);
    const auto menu = found.front().read()->menu;
    EXPECT_EQ(menu, std::string(size, menu.front()));
    found.front().remove();
  }
}

}  // namespace
}  // namespace nimbrel
