#include "linking/link_pages.h"

#include <gtest/gtest.h>

#include "linking/page_rewriting.h"
#include "platform/memory/memory_file_system.h"

namespace nimbrel {
namespace {

TEST(LinkPages, LeavesAPageWholeIfTheDiskFails) {
  const std::string menu = "c:\\site\\m1.js";
  const std::string text = "<body>\n</body>";
  const std::vector<std::string> pages{"c:\\site\\a.html", "c:\\site\\gone.html", "c:\\site\\b\\b.html"};
  const auto linked = [&](const std::string& page) { return linkedPage(text, page, menu, "http://x"); };
  for (int call = 0; call <= 2; ++call) {
    MemoryFileSystem files;
    for (const auto i : {0U, 2U}) files.files[pages[i]] = text;
    files.failsNow = failingFrom(call);
    EXPECT_EQ(LinkPages(files, menu, pages, "http://x").size(), 3U - static_cast<std::size_t>(call));
    EXPECT_EQ(files.files[pages[0]], call > 0 ? linked(pages[0]) : text);
    EXPECT_EQ(files.files[pages[2]], call > 1 ? linked(pages[2]) : text);
  }
}

}  // namespace
}  // namespace nimbrel
