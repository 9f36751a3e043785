#include "platform/memory/memory_file_system.h"

#include <gtest/gtest.h>

namespace nimbrel {
namespace {

TEST(MemoryFileSystem, NeedsTheFolderOfWhatIsWritten) {
  MemoryFileSystem files;
  EXPECT_THROW(files.replace("C:\\site\\a.js", "a"), FileError);
  EXPECT_THROW(files.makeFolder("C:\\site"), FileError);
  files.makeFolder("C:");
  files.makeFolder("C:\\site");
  files.replace("C:\\site\\a.js", "a");
  files.copy("C:\\site\\a.js", "C:\\site\\b.js");
  files.remove("C:\\site\\a.js");
  EXPECT_EQ(files.read("C:\\site\\b.js"), "a");
  EXPECT_THROW(files.read("C:\\site\\a.js"), FileError);
  EXPECT_THROW(files.remove("C:\\site\\a.js"), FileError);
}

TEST(MemoryFileSystem, FailsFromACallOnAndChangesNothing) {
  MemoryFileSystem files;
  files.files = {{"a", "old"}};
  files.failsNow = failingFrom(1);
  files.replace("a", "new");
  EXPECT_THROW(files.replace("a", "newer"), FileError);
  EXPECT_THROW(files.remove("a"), FileError);
  EXPECT_EQ(files.read("a"), "new");
}

}  // namespace
}  // namespace nimbrel
