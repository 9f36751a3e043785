#include "compiler/compile_forms.h"

#include <gmock/gmock.h>

#include "../support/scripted_ports.h"
#include "compiler/compile_properties.h"
#include "platform/program_state.h"

namespace nimbrel {
namespace {

class CompileForms : public testing::Test, public ScriptedPorts {
 protected:
  CompileForms() {
    options.CompiledPath = "C:\\site";
    options.CompiledName = "menu.js";
  }

  ProgramState state;
  CompileSettings options;
};

TEST_F(CompileForms, TheReportNamesWhatWasMadeAndLeadsToLinking) {
  std::vector<std::string> linked;
  const auto link = [&](std::string_view menu, std::string_view submenus) {
    linked = {std::string(menu), std::string(submenus)};
  };
  frmCompileCompleted form(options, link);
  EXPECT_EQ(form.lblMenuDir.text, "C:\\site\\nbrData-menu\\");
  EXPECT_EQ(form.lblImageName.text, "C:\\site\\nbrmenupath.gif");
  form.click(form.cmdYes);
  EXPECT_THAT(linked, testing::ElementsAre("C:\\site\\menu.js", ""));

  options.nbrSubmenusFrame = "content";
  options.nbrImagePath = "pictures";
  frmCompileCompletedCF both(options, link);
  EXPECT_EQ(both.lblImagesDir.text, "C:\\site\\pictures\\");
  both.click(both.cmdYes);
  EXPECT_THAT(linked, testing::ElementsAre("C:\\site\\menu.js", "C:\\site\\menu_sub.js"));
}

TEST_F(CompileForms, TheWarningIsTurnedOffAtOnce) {
  frmCompileMenuWarning form(settings, *this);
  form.check(form.Check1, true);
  EXPECT_EQ(settings.GetSetting("Settings", "DontShowCompileWarningDialog", ""), "1");
  form.click(form.cmdMoreInfo);
  EXPECT_THAT(topics, testing::ElementsAre(2340));
}

TEST_F(CompileForms, PropertiesComeInAndGoOut) {
  options.nbrSubmenusFrame = "content";
  options.nbrSubmenusFrameOffset = 7;
  frmCompileProperties form(asker, *this, state, options);
  EXPECT_TRUE(form.Option1.value && !form.txtLibraryPath.enabled);
  EXPECT_EQ(form.txtSubmenusFrameOffset.text, "7");
  form.click(form.Option2);
  form.enter(form.txtLibraryPath, "a/b");  // kept: a slash passes
  form.enter(form.txtSubmenusFrameOffset, "12.5");
  form.check(form.chkIgnoreThirdState, true);
  form.click(form.cmdOk);
  EXPECT_EQ(options.nbrLibraryPath, "a/b");
  EXPECT_EQ(options.nbrSubmenusFrameOffset, 12);
  EXPECT_TRUE(options.nbrOptimize && state.IsDirty);
}

TEST_F(CompileForms, PropertiesRefuseABadFolderAndForgetAFrameThatIsTurnedOff) {
  options.nbrSubmenusFrame = "content";
  options.nbrImagePath = "old";
  frmCompileProperties form(asker, *this, state, options);
  form.isOpen = true;
  form.enter(form.txtImagePath, "a:b");
  form.choose(form.TabStrip1, {2});
  EXPECT_EQ(form.TabStrip1.text, "Folders");
  EXPECT_TRUE(form.Frame1.visible && !form.Frame3.visible);
  form.click(form.cmdOk);
  EXPECT_TRUE(form.isOpen);
  EXPECT_EQ(asker.boxes.size(), 2U);
  EXPECT_EQ(asker.boxes.back().icon, BoxIcon::Critical);

  form.click(form.Option3);
  EXPECT_EQ(form.txtImagePath.text, "");
  form.choose(form.TabStrip1, {1});
  EXPECT_TRUE(form.Frame2.visible && !form.Frame1.visible);
  form.check(form.chkEnableCrossFrame, false);
  EXPECT_EQ(form.txtSubmenusFrame.text, "");
  form.click(form.cmdCancel);
  EXPECT_EQ(options.nbrSubmenusFrame, "content");
  EXPECT_FALSE(state.IsDirty);
}

}  // namespace
}  // namespace nimbrel
