#include "gallery/style_file.h"

#include <gmock/gmock.h>

#include "persistence/file_versions.h"
#include "persistence/property_line.h"
#include "platform/memory/memory_file_system.h"
#include "support/bytes_of.h"

namespace nimbrel {
namespace {

using testing::StartsWith;

class StyleFile : public testing::Test {
 protected:
  StyleFile() {
    files.folders = {"C:", "C:\\p", "C:\\p\\gallery"};
    files.files = {{"C:\\p\\dot.gif", "dot"}, {"C:\\pics\\a.gif", "a"}, {"C:\\pics\\b.gif", "b"}};
  }

  void save() { SaveStyle(files, "C:\\p", "Blue", style, report); }
  ReadNotes notes;
  bool load() { return ReadStyleFile(files, "C:\\p", "Blue", carryOver, style, notes); }
  std::string& text() { return files.files["C:\\p\\gallery\\Blue.nbs"]; }

  const std::string magic{currentFormat.styleMagic};
  MemoryFileSystem files;
  MenuStyle style = styleOfMenu(nullptr, nullptr);
  StepReport report;
  SubmenuCarryOver carryOver;
};

TEST_F(StyleFile, IsReadBackWithItsPictures) {
  style.submenu.BGImage = "C:\\pics\\a.gif";
  style.item.HasSubmenuImage2 = "C:\\pics\\b.gif";
  save();
  EXPECT_THAT(text(),
              StartsWith(magic + "\r\n 3 Blue-images\\a.gif,Blue-images\\b.gif,Blue-images\\dot.gif,\r\n"));
  EXPECT_EQ(files.filesIn("C:\\p\\gallery\\Blue-images").size(), 3U);
  ASSERT_TRUE(load());
  EXPECT_EQ(style.submenu.BGImage, "C:\\p\\gallery\\Blue-images\\a.gif");
  EXPECT_EQ(style.item.HasSubmenuImage2, "C:\\p\\gallery\\Blue-images\\b.gif");
  removeStyle(files, "C:\\p", "Blue", report);
  EXPECT_FALSE(files.isFile("C:\\p\\gallery\\Blue.nbs") || files.isFolder("C:\\p\\gallery\\Blue-images"));
  EXPECT_TRUE(report.findings.empty());
}

TEST_F(StyleFile, WithoutPicturesHasNoFolderAndReportsAMissingPicture) {
  save();
  EXPECT_THAT(text(), StartsWith(magic + "\r\n 0 \r\n"));
  EXPECT_FALSE(files.isFolder("C:\\p\\gallery\\Blue-images"));
  style.submenu.BGImage = "C:\\pics\\gone.gif";
  save();
  ASSERT_EQ(report.findings.size(), 1U);
  EXPECT_EQ(report.findings.front().path, "C:\\pics\\gone.gif");
  EXPECT_THAT(text(), testing::HasSubstr("Blue-images\\gone.gif"));
}

TEST_F(StyleFile, IsReadInOlderVersions) {
  text() = bytesOf(NIMBREL_TEST_DATA "/golden/styles/nbs120.nbs");
  carryOver.bcSubmenusHow = 2;
  ASSERT_TRUE(load());
  EXPECT_EQ(style.submenu.SubmenuHow, 2);  // Quirk: from the last older menu file
  EXPECT_EQ(style.submenu.BorderColor, "BorderColor 90");
  EXPECT_EQ(style.item.BGImage3, "C:\\p\\gallery\\BGImage3, 176.gif");
}

TEST_F(StyleFile, TakesOnlyPicturesOfTheGallery) {
  for (const auto* foreign : {"..\\..\\secret.gif", "Blue-images/../../secret.gif", "\\home\\me\\a.gif",
                              "C:\\a.gif", "Blue-images\\notes.txt", ".ssh\\id_rsa"}) {
    style.submenu.BGImage = foreign;
    text() =
        "nbs200\r\n 0 \r\n" + ParameterString(style.submenu) + "\r\n" + ParameterString(style.item) + "\r\n";
    notes = {};
    ASSERT_TRUE(load());
    EXPECT_EQ(style.submenu.BGImage, "n") << foreign;
    EXPECT_EQ(notes.findings.size(), 1U) << foreign;
  }
  EXPECT_THROW(ReadStyleFile(files, "C:\\p", "..\\Blue", carryOver, style, notes), FileError);
}

TEST_F(StyleFile, AreSavedWithPicturesOnly) {
  files.files["C:\\home\\.bashrc"] = "secret";
  style.submenu.BGImage = "C:\\home\\.bashrc";
  style.item.BGImage1 = "";  // no picture either
  save();
  EXPECT_THAT(text(), StartsWith("nbs200\r\n 0 \r\n"));
  EXPECT_EQ(report.findings.size(), 1U);
  EXPECT_FALSE(files.isFile("C:\\p\\gallery\\Blue-images\\.bashrc"));
}

}  // namespace
}  // namespace nimbrel
