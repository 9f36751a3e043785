#include "gallery/style_file.h"

#include <gmock/gmock.h>

#include "platform/memory/memory_file_system.h"
#include "support/bytes_of.h"

namespace nimbrel {
namespace {

using testing::HasSubstr;

class StyleFile : public testing::Test {
 protected:
  StyleFile() {
    SetDefaultValues(menu);
    SetDefaultValues(item);
    files.folders = {"C:", "C:\\p", "C:\\p\\gallery"};
    files.files = {{"C:\\p\\dot.gif", "dot"}, {"C:\\pics\\a.gif", "a"}, {"C:\\pics\\b.gif", "b"}};
  }

  void save(const std::string& name) { SaveStyle(files, "C:\\p", name, styleOfMenu(&menu, &item), report); }
  std::string text(const std::string& name) { return files.files.at("C:\\p\\gallery\\" + name + ".nbs"); }

  MemoryFileSystem files;
  MenuObj menu;
  ItemObj item;
  StepReport report;
  SubmenuCarryOver carryOver;
  MenuStyle style;
};

TEST_F(StyleFile, IsReadBackWithItsPictures) {
  menu.BGImage = "C:\\pics\\a.gif";
  menu.BGColor = "#123456";
  menu.menuname = "content";
  item.HasSubmenuImage2 = "C:\\pics\\b.gif";
  item.ItemImage1 = "C:\\pics\\b.gif";
  item.URL = "content.html";
  save("Blue");
  EXPECT_THAT(
      text("Blue"),
      testing::StartsWith("nbs200\r\n 3 Blue-images\\a.gif,Blue-images\\b.gif,Blue-images\\dot.gif,\r\n"));
  EXPECT_EQ(files.files.at("C:\\p\\gallery\\Blue-images\\b.gif"), "b");
  ASSERT_TRUE(ReadStyleFile(files, "C:\\p", "Blue", carryOver, style));
  EXPECT_EQ(style.submenu.BGImage, "C:\\p\\gallery\\Blue-images\\a.gif");
  EXPECT_EQ(style.submenu.BGColor, "#123456");
  EXPECT_EQ(style.item.HasSubmenuImage2, "C:\\p\\gallery\\Blue-images\\b.gif");
  EXPECT_EQ(style.item.ItemImage1, "n") << "not part of a style";
  EXPECT_THAT(text("Blue"), testing::Not(HasSubstr("content")));
  EXPECT_TRUE(report.findings.empty());

  removeStyle(files, "C:\\p", "Blue", report);
  EXPECT_FALSE(files.isFile("C:\\p\\gallery\\Blue.nbs") || files.isFolder("C:\\p\\gallery\\Blue-images"));
  EXPECT_TRUE(report.findings.empty());
}

TEST_F(StyleFile, WithoutPicturesHasNoFolderAndReportsAMissingPicture) {
  save("Plain");
  EXPECT_THAT(text("Plain"), testing::StartsWith("nbs200\r\n 0 \r\n"));
  EXPECT_FALSE(files.isFolder("C:\\p\\gallery\\Plain-images"));
  menu.BGImage = "C:\\pics\\gone.gif";
  save("Plain");
  ASSERT_EQ(report.findings.size(), 1U);
  EXPECT_EQ(report.findings.front().path, "C:\\pics\\gone.gif");
  EXPECT_THAT(text("Plain"), HasSubstr("Plain-images\\gone.gif"));
}

TEST_F(StyleFile, IsReadInOlderVersionsButNotInOtherFormats) {
  save("New");
  files.files["C:\\p\\gallery\\Foreign.nbs"] = "foo,bar";
  EXPECT_FALSE(ReadStyleFile(files, "C:\\p", "Foreign", carryOver, style));
  files.files["C:\\p\\gallery\\Cut.nbs"] = text("New").substr(0, text("New").size() - 20);
  EXPECT_THROW(ReadStyleFile(files, "C:\\p", "Cut", carryOver, style), FileError);
  EXPECT_EQ(style.submenu.BGColor, "#C0C0C0") << "the record read before the error stays";

  files.files["C:\\p\\gallery\\Old.nbs"] = bytesOf(NIMBREL_TEST_DATA "/golden/styles/nbs120.nbs");
  carryOver.bcSubmenusHow = 2;
  ASSERT_TRUE(ReadStyleFile(files, "C:\\p", "Old", carryOver, style));
  EXPECT_EQ(style.submenu.SubmenuHow, 2);  // Quirk: from the last older menu file
  EXPECT_EQ(style.submenu.BorderColor, "BorderColor 90");
  EXPECT_EQ(style.item.BGImage3, "C:\\p\\gallery\\BGImage3, 176");
}

}  // namespace
}  // namespace nimbrel
