#include "platform/posix/host_file_system.h"

#include <chrono>
#include <future>
#include <gmock/gmock.h>
#include <sys/stat.h>

#include "platform/memory/memory_file_system.h"
#include "platform/posix/host_paths.h"
#include "support/temporary_folder.h"

namespace nimbrel {
namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::IsEmpty;

class HostFiles : public testing::Test {
 protected:
  /// The path of a file in the folder, in document form.
  std::string path(const std::string& name) const { return fromHostPath((folder_ / name).string()); }

  TemporaryFolder folder_;
  HostFileSystem files_;
};

TEST_F(HostFiles, AreReadUnchanged) {
  const std::string bytes("\0\r\n\xFF", 4);
  folder_.write("Größe.nbr", bytes);
  EXPECT_EQ(files_.read(path("Größe.nbr")), bytes);
}

TEST_F(HostFiles, AreNeitherFoldersNorPipes) {
  fs::create_directory(folder_ / "folder");
  ASSERT_EQ(::mkfifo((folder_ / "pipe").c_str(), 0600), 0);
  for (const auto* name : {"folder", "pipe", "missing", ""}) {
    EXPECT_FALSE(files_.isFile(path(name))) << name;
    EXPECT_THROW(files_.read(path(name)), FileError) << name;
    EXPECT_EQ(files_.isFolder(path(name)), name == std::string("folder") || *name == '\0') << name;
  }
}

TEST_F(HostFiles, ThatAreTooLargeAreRefused) {
  folder_.write("huge", "");
  fs::resize_file(folder_ / "huge", HostFileSystem::largestFile + 1);
  EXPECT_THROW(files_.read(path("huge")), FileError);
}

TEST_F(HostFiles, AreReplacedTogetherExceptThoseThatFail) {
  folder_.write("a", "old");
  const auto findings =
      files_.replaceAll(std::vector<NewFile>{{path("a"), "new"}, {path("missing/b"), "b"}, {path("c"), "c"}});
  ASSERT_EQ(findings.size(), 1U);
  EXPECT_EQ(findings[0].path, path("missing/b"));
  EXPECT_EQ(folder_.read("a"), "new");
  EXPECT_EQ(folder_.read("c"), "c");
}

TEST_F(HostFiles, AreCopiedButNotOntoThemselves) {
  folder_.write("a.gif", "picture");
  files_.copy(path("a.gif"), path("b.gif"));
  EXPECT_EQ(folder_.read("b.gif"), "picture");
  fs::create_symlink("a.gif", folder_ / "link.gif");
  const fs::file_time_type before{};  // any fixed time
  fs::last_write_time(folder_ / "a.gif", before);
  files_.copy(path("link.gif"), path("a.gif"));
  EXPECT_EQ(folder_.read("a.gif"), "picture");
  EXPECT_EQ(fs::last_write_time(folder_ / "a.gif"), before);
  EXPECT_THROW(files_.copy(path("missing"), path("b.gif")), FileError);
}

TEST_F(HostFiles, AreInFoldersThatMustBeEmptyToBeRemoved) {
  for (int i = 0; i < 2; ++i) files_.makeFolder(path("folder"));
  folder_.write("folder/file", "");
  EXPECT_THROW(files_.makeFolder(path("missing/folder")), FileError);
  EXPECT_THROW(files_.makeFolder(path("folder/file")), FileError);
  EXPECT_THROW(files_.removeFolder(path("folder")), FileError);
  EXPECT_THROW(files_.remove(path("folder")), FileError);
  files_.remove(path("folder/file"));
  EXPECT_THROW(files_.remove(path("folder/file")), FileError);
  files_.removeFolder(path("folder"));
  EXPECT_FALSE(files_.isFolder(path("folder")));
}

TEST_F(HostFiles, AreListedInByteOrder) {
  for (const auto* name : {"b", "ä", "B", "a"}) folder_.write(name, "");
  fs::create_directory(folder_ / "folder");
  EXPECT_THAT(files_.filesIn(path(".")), ElementsAre("B", "a", "b", "\xE4"));
  EXPECT_THAT(files_.filesIn(path("missing")), IsEmpty());
}

TEST_F(HostFiles, AreReadInParts) {
  folder_.write("a", "0123456789");
  EXPECT_EQ(files_.readPart(path("a"), 0, 3), "012");
  EXPECT_EQ(files_.readPart(path("a"), 8, 5), "89");
  EXPECT_EQ(files_.readPart(path("a"), 99, 5), "");
}

TEST_F(HostFiles, HaveAnotherStatusAfterAChange) {
  folder_.write("a", "one");
  ASSERT_EQ(::chmod((folder_ / "a").c_str(), 0644), 0);
  const auto before = files_.status(path("a"));
  ASSERT_TRUE(before);
  EXPECT_EQ(before->size, 3U);
  EXPECT_FALSE(before->isPrivate);
  EXPECT_EQ(files_.status(path("a")), before);
  files_.replace(path("a"), "two");
  EXPECT_NE(files_.status(path("a")), before);
  ASSERT_EQ(::chmod((folder_ / "a").c_str(), 0600), 0);
  EXPECT_TRUE(files_.status(path("a"))->isPrivate);
  EXPECT_FALSE(files_.status(path("missing")));
}

TEST_F(HostFiles, AreInsideAFolderOnlyIfNoLinkLeadsOut) {
  fs::create_directories(folder_ / "site/menu");
  fs::create_directory(folder_ / "site2");
  fs::create_directory_symlink(folder_ / "site2", folder_ / "site/out");
  fs::create_directory_symlink(folder_ / "site/menu", folder_ / "site/in");
  const auto isInside = [this](const char* name) { return files_.isInside(path(name), path("site")); };
  for (const auto* name : {"site", "site/menu/new/file.js", "site/in/file.js", "site/menu/../file.js"})
    EXPECT_TRUE(isInside(name)) << name;
  for (const auto* name : {"site2/a", "site/../a", "site/out/file.js", "site/out"})
    EXPECT_FALSE(isInside(name)) << name;
}

TEST_F(HostFiles, AreLockedWithTheirFolder) {
  const std::vector folder{path("."), path("../" + fs::path(folder_ / "").parent_path().filename().string()),
                           path("missing")};
  auto mine = files_.lock(folder);
  auto other = std::async(std::launch::async, [&] { return files_.lock(folder); });
  EXPECT_EQ(other.wait_for(std::chrono::milliseconds(50)), std::future_status::timeout);
  EXPECT_EQ(files_.tryLock(path(".")), nullptr);
  mine.reset();
  EXPECT_NE(other.get(), nullptr);
  EXPECT_NE(files_.tryLock(path(".")), nullptr);
  EXPECT_EQ(files_.tryLock(path("missing")), nullptr);
}

TEST(MemoryFiles, AreInsideAFolderAsOnADisk) {
  const MemoryFileSystem files;
  EXPECT_TRUE(files.isInside("C:\\w\\a\\b.js", "C:\\w"));
  EXPECT_FALSE(files.isInside("C:\\w\\..\\b.js", "C:\\w"));
  EXPECT_FALSE(files.isInside("C:\\wide", "C:\\w"));
}

TEST(MemoryFiles, AreWrittenOnlyToFoldersThatExist) {
  MemoryFileSystem files;
  EXPECT_THROW(files.replace("C:\\site\\menu.js", ""), FileError);
  EXPECT_TRUE(files.files.empty());
}

}  // namespace
}  // namespace nimbrel
