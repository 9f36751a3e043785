#include "compiler/image_collection.h"

#include <gtest/gtest.h>

#include "compiler/fixtures.h"
#include "platform/memory/memory_file_system.h"

namespace nimbrel {
namespace {

class ImageCollectionTest : public testing::Test {
 protected:
  ImageCollectionTest() {
    files.files = {{"C:\\a\\x.gif", gif(1, 2)}, {"C:\\b\\x.gif", gif(3, 4)}, {"C:\\b\\X.GIF", gif(5, 6)},
                   {"C:\\a\\y.gif", gif(7, 8)}, {"C:\\a\\odd.txt", "what?"}, {"nomoreimages", ""}};
    files.folders = {"C:\\site"};
  }

  std::string collect(const char* top = "M0", bool includeSubmenus = true) {
    ImageCollection images(folder);
    images.CollectImages(document, *document.tvTreeView.find(top), includeSubmenus);
    return images.tableLine();
  }
  ItemObj& item(const char* key) { return get<ItemObj>(document, key); }
  SubmenuObj& submenu(const char* key) { return get<SubmenuObj>(document, key); }

  MemoryFileSystem files;
  StepReport report;
  FileSteps steps{files, report};
  ImageFolder folder{steps, "C:\\site"};
  Document document = menuWithTwoSubmenus();
};

TEST_F(ImageCollectionTest, TellsEachMissingPictureOnceAndTheEmptyPathNever) {
  item("I1").ItemImage1 = item("I1").BGImage2 = "C:\\a\\gone.gif";
  item("I1").ItemImage2 = "C:\\a";
  item("I1").ItemImage3 = "";
  item("I1").BGImage2No = 5;
  item("I2").ItemImage1 = "nomoreimages";
  item("I2").ItemImage2 = "C:\\a\\x.gif";  // kept: not seen behind the name that stands for "no more"
  EXPECT_EQ(collect(), "");
  EXPECT_EQ(item("I1").BGImage2No, 0);
  ASSERT_EQ(report.findings.size(), 2U);
  EXPECT_EQ(report.findings[0].path, "C:\\a\\gone.gif");
  EXPECT_EQ(report.findings[0].reason, "there is no such picture (used by I1)");
}

TEST_F(ImageCollectionTest, OfPicturesOfOneNameTheFirstOfAGroupIsShownAndTheLastGroupsStays) {
  item("I5").ItemImage1 = "C:\\a\\x.gif";
  item("I5").ItemImage2 = item("I7").ItemImage1 = "C:\\b\\x.gif";
  item("I5").BGImage1 = "C:\\b\\X.GIF";
  item("I5").ItemImage3 = "C:\\a\\odd.txt";
  EXPECT_EQ(collect("S4"), "nbrImagesColl=['x.gif',1,2,'odd.txt',0,0,'X.GIF',5,6];");
  EXPECT_EQ(item("I5").ItemImage2No, 1);
  EXPECT_EQ(files.files["C:\\site\\x.gif"], gif(1, 2));
  EXPECT_EQ(collect("S6"), "nbrImagesColl=['x.gif',3,4];");
  EXPECT_EQ(files.files["C:\\site\\x.gif"], gif(3, 4));
}

// kept: the text of a node, not its key, tells the main menu from its items.
TEST_F(ImageCollectionTest, WithoutSubmenusAnItemOfTheMainMenusTextGoesDownOneLevel) {
  item("I1").ItemImage1 = "C:\\a\\x.gif";
  submenu("S4").BGImage = submenu("S6").BGImage = "C:\\a\\y.gif";
  EXPECT_EQ(collect("M0", false), "nbrImagesColl=['x.gif',1,2];");
  document.tvTreeView.find("I2")->Text = "Main Menu";
  EXPECT_EQ(collect("M0", false), "nbrImagesColl=['x.gif',1,2,'y.gif',7,8];");
  EXPECT_EQ(submenu("S6").BGImageNo, 2);
  EXPECT_EQ(submenu("S4").BGImageNo, 0);
}

}  // namespace
}  // namespace nimbrel
