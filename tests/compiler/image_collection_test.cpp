#include "compiler/image_collection.h"

#include <gmock/gmock.h>

#include "compiler/fixtures.h"
#include "platform/memory/memory_file_system.h"

namespace nimbrel {
namespace {

using testing::ElementsAre;

class ImageCollectionTest : public testing::Test {
 protected:
  ImageCollectionTest() {
    files.files = {{"C:\\a\\x.gif", gif(1, 2)}, {"C:\\b\\x.gif", gif(3, 4)}, {"C:\\b\\X.GIF", gif(5, 6)},
                   {"C:\\a\\y.gif", gif(7, 8)}, {"C:\\a\\odd.txt", "what?"}, {"C:\\site\\old.gif", "old"}};
  }

  std::string collect(const char* top = "M0", bool includeSubmenus = true) {
    ImageCollection images(folder);
    images.CollectImages(document, *document.tvTreeView.find(top), includeSubmenus);
    return images.tableLine();
  }

  MemoryFileSystem files;
  StepReport report;
  FileSteps steps{files, report};
  ImageFolder folder{steps, "C:\\site"};
  Document document = menuWithTwoSubmenus();
};

TEST_F(ImageCollectionTest, NumbersByFirstUseDepthFirst) {
  get<MenuObj>(document, "M0").BGImage = "C:\\b\\X.GIF";
  auto& item = get<ItemObj>(document, "I2");
  item.BGImage1 = "C:\\a\\x.gif";
  item.ItemImage3 = "C:\\a\\y.gif";  // a slot ahead of that of the background
  get<SubmenuObj>(document, "S4").TitleImage = "C:\\a\\odd.txt";
  get<ItemObj>(document, "I7").HasSubmenuImage2 = "C:\\a\\y.gif";
  item.ItemImage1No = item.HasSubmenuImage1No = 99;  // of an earlier compile

  EXPECT_EQ(collect(), "nbrImagesColl=['X.GIF',5,6,'odd.txt',0,0,'y.gif',7,8,'x.gif',1,2];");
  EXPECT_EQ(get<MenuObj>(document, "M0").BGImageNo, 1);
  EXPECT_EQ(get<MenuObj>(document, "M0").TitleImageNo, 0);
  EXPECT_EQ(get<SubmenuObj>(document, "S4").TitleImageNo, 2);
  EXPECT_EQ(item.ItemImage1No, 0);
  EXPECT_EQ(item.ItemImage3No, 3);
  EXPECT_EQ(item.HasSubmenuImage1No, 0);
  EXPECT_EQ(item.BGImage1No, 4);
  EXPECT_EQ(get<ItemObj>(document, "I7").HasSubmenuImage2No, 3);
  EXPECT_THAT(report.made,
              ElementsAre("C:\\site\\X.GIF", "C:\\site\\odd.txt", "C:\\site\\y.gif", "C:\\site\\x.gif"));
  EXPECT_EQ(files.files["C:\\site\\old.gif"], "old");
}

TEST_F(ImageCollectionTest, NothingToShow) {
  auto& item = get<ItemObj>(document, "I1");
  item.ItemImage1 = item.BGImage2 = "C:\\a\\gone.gif";
  item.ItemImage2 = "C:\\a";
  item.ItemImage3 = "";
  item.BGImage1No = item.BGImage2No = 5;
  EXPECT_EQ(collect(), "");
  EXPECT_EQ(item.BGImage1No + item.BGImage2No + item.ItemImage1No, 0);
  ASSERT_EQ(report.findings.size(), 2U) << "each missing picture once, the empty path never";
  EXPECT_EQ(report.findings[0].path, "C:\\a\\gone.gif");
  EXPECT_EQ(report.findings[0].reason, "there is no such picture (used by I1)");
}

TEST_F(ImageCollectionTest, OfTwoPicturesOfOneNameTheFirstIsShown) {
  get<ItemObj>(document, "I1").ItemImage1 = "C:\\a\\x.gif";
  get<ItemObj>(document, "I2").ItemImage1 = "C:\\b\\x.gif";
  EXPECT_EQ(collect(), "nbrImagesColl=['x.gif',1,2];");
  EXPECT_EQ(get<ItemObj>(document, "I2").ItemImage1No, 1);
  EXPECT_EQ(files.files["C:\\site\\x.gif"], gif(1, 2));
}

TEST_F(ImageCollectionTest, EachGroupHasNumbersOfItsOwnAndTheLastOneItsPicture) {
  get<ItemObj>(document, "I5").ItemImage1 = "C:\\a\\y.gif";
  get<ItemObj>(document, "I5").ItemImage2 = "C:\\a\\x.gif";
  get<ItemObj>(document, "I7").ItemImage1 = "C:\\b\\x.gif";
  EXPECT_EQ(collect("S4"), "nbrImagesColl=['y.gif',7,8,'x.gif',1,2];");
  EXPECT_EQ(collect("S6"), "nbrImagesColl=['x.gif',3,4];");
  EXPECT_EQ(get<ItemObj>(document, "I7").ItemImage1No, 1);
  EXPECT_EQ(files.files["C:\\site\\x.gif"], gif(3, 4));
}

// kept: the text of a node, not its key, tells the main menu from its items.
TEST_F(ImageCollectionTest, WithoutSubmenusAnItemOfTheMainMenusTextGoesDownOneLevel) {
  get<ItemObj>(document, "I1").ItemImage1 = "C:\\a\\x.gif";
  get<SubmenuObj>(document, "S4").BGImage = get<SubmenuObj>(document, "S6").BGImage = "C:\\a\\y.gif";
  get<ItemObj>(document, "I5").ItemImage1 = "C:\\a\\odd.txt";
  EXPECT_EQ(collect("M0", false), "nbrImagesColl=['x.gif',1,2];");
  EXPECT_EQ(get<SubmenuObj>(document, "S4").BGImageNo, 0);

  document.tvTreeView.find("I2")->Text = "Main Menu";
  EXPECT_EQ(collect("M0", false), "nbrImagesColl=['x.gif',1,2,'y.gif',7,8];");
  EXPECT_EQ(get<SubmenuObj>(document, "S6").BGImageNo, 2);
  EXPECT_EQ(get<SubmenuObj>(document, "S4").BGImageNo, 0);
}

}  // namespace
}  // namespace nimbrel
