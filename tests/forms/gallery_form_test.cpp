#include "forms/gallery_form.h"

#include <gmock/gmock.h>

#include "support/scripted_ports.h"

namespace nimbrel {
namespace {

using testing::HasSubstr;

class Gallery : public testing::Test {
 protected:
  Gallery() {
    files.folders = {"C:", "C:\\p", "C:\\p\\gallery"};
    files.files = {{"C:\\p\\dot.gif", "dot"}, {"C:\\p\\gallery\\nbrData\\old.GIF", ""}};
    MenuStyle style = styleOfMenu(nullptr, nullptr);
    style.submenu.BGColor = "#123456";
    StepReport report;
    SaveStyle(files, program, "Blue", style, report);
  }

  /// The script that shows a style, empty if there is none.
  std::string script() { return files.files["C:\\p\\gallery\\stylepreview.js"]; }

  ScriptedPorts system;
  MemoryFileSystem& files = system.files;
  const std::string program = "C:\\p";
  const GalleryPorts ports{files, files, system.asker, system};
  SubmenuCarryOver carryOver;
};

TEST_F(Gallery, ShowsAStyleInFilesThatItRemovesAgain) {
  StyleScope applied{};
  frmGallery form(ports, program, carryOver, Kind::Menu, [&](auto scope, auto&) { applied = scope; });
  form.Form_Activate();
  EXPECT_THAT(script(), HasSubstr("#123456"));
  EXPECT_FALSE(files.isFile("C:\\p\\gallery\\nbrData\\old.GIF"));
  EXPECT_TRUE(files.isFile("C:\\p\\gallery\\nbrData\\dot.gif"));

  form.WebBrowser.event();
  for (int tick = 0; tick < 2; ++tick) form.Timer1.event();
  EXPECT_TRUE(form.Timer1.value);
  EXPECT_THAT(files.filesIn("C:\\p\\gallery"), testing::ElementsAre("Blue.nbs"));
  EXPECT_TRUE(system.asker.failures.empty());

  form.click(form.Option2);
  form.click(form.btnApply);
  EXPECT_EQ(applied, StyleScope::Submenu);
}

TEST_F(Gallery, DoesNotApplyAStyleThatItCannotReadCompletely) {
  const auto whole = files.read("C:\\p\\gallery\\Blue.nbs");
  files.files["C:\\p\\gallery\\Foreign.nbs"] = "foo";
  files.files["C:\\p\\gallery\\Half.nbs"] = whole.substr(0, whole.size() / 2);
  frmGallery form(ports, program, carryOver, Kind::Menu, nullptr);
  form.Form_Activate();
  form.choose(form.cboStyle, {1});
  EXPECT_EQ(form.WebBrowser.text, "C:\\p\\invalidstyle.html");
  EXPECT_FALSE(form.btnApply.usable() || form.Option1.usable());
  system.asker.answers = {BoxButton::No, BoxButton::Yes};
  form.click(form.btnDeleteStyle);  // Quirk: "No" selects the first style too
  EXPECT_TRUE(form.btnApply.usable() && files.isFile("C:\\p\\gallery\\Foreign.nbs"));

  form.choose(form.cboStyle, {2});
  EXPECT_EQ(system.asker.failures.size(), 1U);
  EXPECT_THAT(script(), HasSubstr("#123456")) << "the record before the error";
  EXPECT_FALSE(form.btnApply.usable());
  form.click(form.btnDeleteStyle);
  EXPECT_FALSE(files.isFile("C:\\p\\gallery\\Half.nbs"));
}

}  // namespace
}  // namespace nimbrel
