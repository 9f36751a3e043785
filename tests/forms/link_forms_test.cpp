#include "forms/link_forms.h"

#include <gmock/gmock.h>

#include "../support/scripted_ports.h"

namespace nimbrel {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

constexpr const char* compiled =
    "//----------DHTML Menu Created using Nimbrel ver 2.0-#460---------------\r\n";

class LinkForms : public testing::Test, public ScriptedPorts {
 protected:
  LinkForms() {
    files.files = {{"C:\\site\\menu.js", compiled},
                   {"C:\\site\\menu_sub.js", compiled},
                   {"C:\\site\\a.htm", "<html><body></body></html>"},
                   {"C:\\site\\B.HTML", "<html><body></body></html>"},
                   {"C:\\site\\notes.txt", ""}};
  }

  void addAll(frmInsertIntoWebPage1& form) {
    form.choose(form.File1, {0, 1});
    form.click(form.cmbAddToList);
  }
  bool isLinked(const char* path) { return files.files.at(path).find("nbrBuildMenu") != std::string::npos; }

  std::string lastFolder = "C:\\site";
};

TEST_F(LinkForms, RefusesFilesOfOldBuilds) {
  frmInsertIntoWebPage0 form({files, asker, *this, *this}, lastFolder, "");
  EXPECT_FALSE(form.cmdOk.enabled);
  form.isOpen = true;
  form.enter(form.txtMenuDestination, "C:\\site\\notes.txt");
  form.click(form.cmdOk);
  EXPECT_EQ(asker.boxes.back().title, "Menu compiled with older version");
  EXPECT_EQ(asker.boxes.back().helpTopic, 2400);
  EXPECT_FALSE(form.isOpen);
  EXPECT_THAT(asker.forms, testing::IsEmpty());
}

TEST_F(LinkForms, CollectsPagesAndLinksThem) {
  frmInsertIntoWebPage1 form({files, asker, *this, *this}, lastFolder, "C:\\site\\menu.js", "");
  form.isOpen = true;
  EXPECT_THAT(form.File1.list, ElementsAre("B.HTML", "a.htm"));
  EXPECT_FALSE(form.cmdLink.enabled);
  addAll(form);
  addAll(form);
  EXPECT_THAT(form.List1.list, ElementsAre("C:\\site\\B.HTML", "C:\\site\\a.htm"));
  form.choose(form.List1, {0, 1});
  form.click(form.cmbRemoveFromList);
  EXPECT_FALSE(form.cmdLink.enabled);
  form.choose(form.Combo1, {1});
  EXPECT_THAT(form.File1.list, testing::Contains("notes.txt"));
  form.choose(form.Combo1, {0});
  addAll(form);

  form.check(form.chkAltUrl, true);
  form.enter(form.txtAltUrl, "old.html");
  form.check(form.chkAltUrl, false);
  EXPECT_EQ(form.txtAltUrl.text, "");
  form.check(form.chkAltUrl, true);
  asker.answers = {BoxButton::Yes};
  asker.inForm = [](Form& pages) {
    pages.choose(*pages.find("List1"), {1});
    pages.click(*pages.find("cmdPreview"));
  };
  form.click(form.cmdLink);
  EXPECT_FALSE(form.isOpen);
  EXPECT_TRUE(isLinked("C:\\site\\a.htm"));
  EXPECT_THAT(files.files.at("C:\\site\\B.HTML"), HasSubstr("nbrAltUrl='old.html'"));
  EXPECT_THAT(asker.forms, ElementsAre("frmPreviewPages"));
  EXPECT_THAT(opened, ElementsAre("C:\\site\\a.htm"));
}

TEST_F(LinkForms, LinksACrossFrameMenuInTwoPasses) {
  frmInsertIntoWebPage1 form({files, asker, *this, *this}, lastFolder, "C:\\site\\menu.js",
                             "C:\\site\\menu_sub.js");
  addAll(form);
  asker.inForm = [&](Form& second) {
    auto& next = dynamic_cast<frmInsertIntoWebPage1&>(second);
    EXPECT_EQ(next.lblMenuDestination.text, "C:\\site\\menu_sub.js");
    asker.inForm = {};
    next.choose(next.File1, {1});
    next.click(next.cmbAddToList);
    next.click(next.cmdLink);
    EXPECT_FALSE(next.isOpen);
  };
  form.click(form.cmdLink);
  ASSERT_EQ(asker.boxes.size(), 2U);
  EXPECT_EQ(asker.boxes[0].icon, BoxIcon::Information);
  EXPECT_EQ(asker.boxes[1].icon, BoxIcon::Exclamation);
  EXPECT_THAT(files.files.at("C:\\site\\a.htm"), HasSubstr("menu_sub.js"));
  EXPECT_THAT(files.files.at("C:\\site\\B.HTML"), testing::Not(HasSubstr("menu_sub.js")));
}

TEST_F(LinkForms, ReportsPagesThatCannotBeWritten) {
  frmInsertIntoWebPage1 form({files, asker, *this, *this}, lastFolder, "C:\\site\\menu.js", "");
  addAll(form);
  files.failsNow = failingFrom(0);
  form.click(form.cmdLink);
  EXPECT_THAT(asker.boxes.front().text, HasSubstr("C:\\site\\a.htm"));
  EXPECT_FALSE(isLinked("C:\\site\\a.htm"));
}

}  // namespace
}  // namespace nimbrel
