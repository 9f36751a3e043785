#include "compiler/image_collection.h"

#include <gmock/gmock.h>
#include <map>

#include "compiler/fixtures.h"
#include "platform/memory/memory_file_system.h"

namespace nimbrel {
namespace {

using testing::Each;
using testing::ElementsAre;
using testing::IsEmpty;

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

  /// Collects the pictures of a part of the document, each as "NAME WIDTH HEIGHT".
  std::vector<std::string> collect(const char* top = "M0") {
    numbers.clear();
    CompiledGroup group;
    for (const Node *first = document.tvTreeView.find(top), *node = first; node != nullptr;
         node = following(node, first)) {
      group.elements.push_back({node, document.element(*node), 0, {}});
    }
    CollectImages(document, folder, group);
    for (const auto& one : group.elements) numbers.emplace(one.node->Key, one.numbers.pictures);
    std::vector<std::string> pictures;
    for (const auto& [name, width, height] : group.pictures) {
      pictures.push_back(name + " " + std::to_string(width) + " " + std::to_string(height));
    }
    return pictures;
  }
  ItemObj& item(const char* key) { return get<ItemObj>(document, key); }

  MemoryFileSystem files;
  CompiledScript script;
  PictureFolder folder{files, script};
  Document document = menuWithTwoSubmenus();
  std::map<std::string, std::array<std::int32_t, ElementNumbers::mostPictures>> numbers;
};

TEST_F(ImageCollectionTest, ReportsEachMissingPictureOnce) {
  item("I1").ItemImage1 = item("I1").BGImage2 = "C:\\a\\gone.gif";
  item("I1").ItemImage2 = "C:\\a";
  item("I1").ItemImage3 = "";
  item("I2").ItemImage1 = "nomoreimages";
  item("I2").ItemImage2 = "C:\\a\\x.gif";  // Quirk: ignored after the end marker
  EXPECT_THAT(collect(), IsEmpty());
  EXPECT_THAT(numbers.at("I1"), Each(ElementNumbers::none));
  ASSERT_EQ(script.findings.size(), 2U);
  EXPECT_EQ(script.findings[0].path, "C:\\a\\gone.gif");
  EXPECT_EQ(script.findings[0].reason, "there is no such picture (used by I1)");
}

TEST_F(ImageCollectionTest, ShowsTheFirstPictureOfANameAndKeepsTheLastGroupsFile) {
  item("I5").ItemImage1 = "C:\\a\\x.gif";
  item("I5").ItemImage2 = item("I7").ItemImage1 = "C:\\b\\x.gif";
  item("I5").BGImage1 = "C:\\b\\X.GIF";
  item("I5").ItemImage3 = "C:\\a\\odd.gif";
  EXPECT_THAT(collect("S4"), ElementsAre("x.gif 1 2", "odd.gif 0 0", "X.GIF 5 6"));
  EXPECT_EQ(numbers.at("I5")[1], 0);
  EXPECT_THAT(collect("S6"), ElementsAre("x.gif 3 4"));
  EXPECT_THAT(script.pictures, ElementsAre("C:\\a\\x.gif", "C:\\a\\odd.gif", "C:\\b\\X.GIF", "C:\\b\\x.gif"));
}

}  // namespace
}  // namespace nimbrel
