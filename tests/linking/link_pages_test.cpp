#include "linking/link_pages.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "linking/page_rewriting.h"
#include "platform/memory/memory_file_system.h"

namespace nimbrel {
namespace {

using testing::ElementsAre;
using testing::Field;

const std::string menu = "c:\\site\\m1.js";
const std::vector<std::string> pages{"c:\\site\\a.html", "c:\\site\\gone.html", "c:\\site\\b\\b.html"};

class LinkPagesTest : public testing::Test {
 protected:
  void SetUp() override {
    for (const auto i : {0U, 2U}) files.files[pages[i]] = "<body>\n</body>";
  }
  std::string linked(const std::string& page) {
    return linkedPage("<body>\n</body>", page, menu, "http://x");
  }

  MemoryFileSystem files;
};

TEST_F(LinkPagesTest, LinksEachPageAndReportsTheOthers) {
  std::vector<std::size_t> progress;
  const auto findings =
      LinkPages(files, menu, pages, "http://x", [&](std::size_t done) { progress.push_back(done); });
  EXPECT_THAT(findings, ElementsAre(Field(&Finding::path, pages[1])));
  EXPECT_EQ(files.files[pages[0]], linked(pages[0]));
  EXPECT_EQ(files.files[pages[2]], linked(pages[2]));
  EXPECT_EQ(files.files.size(), 2U) << "no page is made";
  EXPECT_THAT(progress, ElementsAre(1, 2, 3));
}

TEST_F(LinkPagesTest, LeavesAPageWholeWhenTheDiskFails) {
  for (int call = 0; call <= 2; ++call) {
    SetUp();
    files.failsNow = failingFrom(call);
    EXPECT_EQ(LinkPages(files, menu, pages, "http://x").size(), 3U - static_cast<std::size_t>(call));
    EXPECT_EQ(files.files[pages[0]], call > 0 ? linked(pages[0]) : "<body>\n</body>");
    EXPECT_EQ(files.files[pages[2]], call > 1 ? linked(pages[2]) : "<body>\n</body>");
  }
}

}  // namespace
}  // namespace nimbrel
