#include "text/paths.h"

#include <gtest/gtest.h>

namespace nimbrel {
namespace {

TEST(FolderName, IsEmptyForABareFileName) { EXPECT_EQ(folderName("m.js"), ""); }

}  // namespace
}  // namespace nimbrel
