#include "gallery/gallery_form.h"

#include <gmock/gmock.h>

#include "support/scripted_ports.h"

namespace nimbrel {
namespace {

using testing::ElementsAre;

class Gallery : public testing::Test {
 protected:
  Gallery() {
    files().folders = {"C:", "C:\\p", "C:\\p\\gallery"};
    files().files = {{"C:\\p\\dot.gif", "dot"},
                     {"C:\\p\\gallery\\Foreign.nbs", "foo"},
                     {"C:\\p\\gallery\\nbrData\\old.GIF", ""},
                     {"C:\\p\\gallery\\nbrData\\nbrlib0.js", ""}};
    MenuObj menu;
    ItemObj item;
    SetDefaultValues(menu);
    SetDefaultValues(item);
    menu.BGColor = "#123456";
    StepReport report;
    SaveStyle(files(), "C:\\p", "Blue", styleOfMenu(&menu, &item), report);
    state.programFolder = "C:\\p";
  }

  MemoryFileSystem& files() { return system.files; }
  std::string& styleFile() { return files().files.at("C:\\p\\gallery\\Blue.nbs"); }
  bool has(const char* file) { return files().isFile(std::string("C:\\p\\gallery\\") + file); }

  frmGallery& open(Kind selected) {
    form = std::make_unique<frmGallery>(system.ports, state, carryOver, selected, nullptr);
    form->isOpen = true;
    form->Form_Activate();
    return *form;
  }

  ScriptedPorts system;
  ProgramState state;
  SubmenuCarryOver carryOver;
  std::unique_ptr<frmGallery> form;
};

TEST_F(Gallery, ShowsTheFirstStyleInFilesThatItRemovesAgain) {
  auto& gallery = open(Kind::Menu);
  EXPECT_THAT(gallery.cboStyle.list, ElementsAre("Blue", "Foreign"));
  EXPECT_EQ(gallery.WebBrowser.text, "C:\\p\\gallery\\stylepreview.html");
  EXPECT_THAT(files().read("C:\\p\\gallery\\stylepreview.js"), testing::HasSubstr("#123456"));
  EXPECT_FALSE(has("nbrData\\old.GIF"));
  EXPECT_TRUE(has("nbrData\\nbrlib0.js") && has("nbrData\\dot.gif"));

  gallery.WebBrowser.event();
  for (int tick = 0; tick < 2; ++tick) gallery.Timer1.event();
  EXPECT_TRUE(gallery.Timer1.value);
  EXPECT_FALSE(has("stylepreview.html") || has("stylepreview.js"));
  EXPECT_TRUE(system.asker.failures.empty());
}

TEST_F(Gallery, AFileOfAnotherFormatCanBeDeletedButNotApplied) {
  auto& gallery = open(Kind::Item);
  gallery.choose(gallery.cboStyle, {1});
  EXPECT_EQ(gallery.WebBrowser.text, "C:\\p\\invalidstyle.html");
  EXPECT_FALSE(gallery.btnApply.usable() || gallery.Option1.usable());
  system.asker.answers = {BoxButton::No, BoxButton::Yes, BoxButton::Yes};
  gallery.click(gallery.btnDeleteStyle);  // Quirk: "No" selects the first style too
  EXPECT_TRUE(gallery.btnApply.usable() && has("Foreign.nbs"));
  for (int i = 0; i < 2; ++i) gallery.click(gallery.btnDeleteStyle);
  EXPECT_FALSE(has("Blue.nbs") || has("Foreign.nbs"));
  EXPECT_EQ(gallery.WebBrowser.text, "C:\\p\\nostyles.html");
  EXPECT_FALSE(gallery.btnDeleteStyle.usable());
  EXPECT_TRUE(system.asker.failures.empty());
}

TEST_F(Gallery, ATruncatedStyleIsShownButAMissingOneIsNot) {
  styleFile().resize(styleFile().size() / 2);
  auto& gallery = open(Kind::Menu);
  EXPECT_EQ(system.asker.failures.size(), 1U);
  EXPECT_FALSE(gallery.btnApply.usable());
  EXPECT_TRUE(gallery.Option1.usable());
  EXPECT_THAT(files().read("C:\\p\\gallery\\stylepreview.js"), testing::HasSubstr("#123456"));

  auto& again = open(Kind::Menu);
  files().files.erase("C:\\p\\gallery\\Foreign.nbs");
  again.choose(again.cboStyle, {1});
  EXPECT_FALSE(again.btnApply.usable());
  EXPECT_EQ(system.asker.failures.back().reason, "no such file");
}

}  // namespace
}  // namespace nimbrel
