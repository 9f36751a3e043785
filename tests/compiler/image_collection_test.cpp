#include "compiler/image_collection.h"

#include <gtest/gtest.h>

#include "compiler/fixtures.h"
#include "compiler/style_strings.h"
#include "platform/memory/memory_file_system.h"

namespace nimbrel {
namespace {

class ImageCollectionTest : public testing::Test {
 protected:
  ImageCollectionTest() {
    files.files = {{"C:\\a\\x.gif", gif(1, 2)},
                   {"C:\\b\\x.gif", gif(3, 4)},
                   {"C:\\b\\X.GIF", gif(5, 6)},
                   {"C:\\a\\odd.gif", "what?"},
                   {"nomoreimages", ""}};
    files.folders = {"C:\\site"};
  }

  std::string collect(const char* top = "M0") {
    ImageCollection images(folder);
    images.CollectImages(document, *document.tvTreeView.find(top), true);
    return images.tableLine();
  }
  ItemObj& item(const char* key) { return get<ItemObj>(document, key); }

  MemoryFileSystem files;
  StepReport report;
  FileSteps steps{files, report};
  ImageFolder folder{steps, "C:\\site"};
  Document document = menuWithTwoSubmenus();
};

TEST_F(ImageCollectionTest, ReportsEachMissingPictureOnce) {
  item("I1").ItemImage1 = item("I1").BGImage2 = "C:\\a\\gone.gif";
  item("I1").ItemImage2 = "C:\\a";
  item("I1").ItemImage3 = "";
  item("I1").BGImage2No = 5;
  item("I2").ItemImage1 = "nomoreimages";
  item("I2").ItemImage2 = "C:\\a\\x.gif";  // Quirk: ignored after the end marker
  EXPECT_EQ(collect(), "");
  EXPECT_EQ(item("I1").BGImage2No, 0);
  ASSERT_EQ(report.findings.size(), 2U);
  EXPECT_EQ(report.findings[0].path, "C:\\a\\gone.gif");
  EXPECT_EQ(report.findings[0].reason, "there is no such picture (used by I1)");
}

TEST_F(ImageCollectionTest, ShowsTheFirstPictureOfANameAndKeepsTheLastGroupsFile) {
  item("I5").ItemImage1 = "C:\\a\\x.gif";
  item("I5").ItemImage2 = item("I7").ItemImage1 = "C:\\b\\x.gif";
  item("I5").BGImage1 = "C:\\b\\X.GIF";
  item("I5").ItemImage3 = "C:\\a\\odd.gif";
  EXPECT_EQ(collect("S4"), "nbrImagesColl=['x.gif',1,2,'odd.gif',0,0,'X.GIF',5,6];");
  EXPECT_EQ(item("I5").ItemImage2No, 1);
  EXPECT_EQ(files.files["C:\\site\\x.gif"], gif(1, 2));
  EXPECT_EQ(collect("S6"), "nbrImagesColl=['x.gif',3,4];");
  EXPECT_EQ(files.files["C:\\site\\x.gif"], gif(3, 4));
}

TEST(StyleStrings, ANegativeImageNumberIsNoImage) {
  ItemObj item;
  std::string none;
  std::string negative;
  ItemStyleString1(item, none);
  item.BGImage1No = -1;
  ItemStyleString1(item, negative);
  EXPECT_EQ(negative, none);
}

}  // namespace
}  // namespace nimbrel
