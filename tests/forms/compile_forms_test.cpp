#include <gtest/gtest.h>

#include "../support/scripted_ports.h"
#include "forms/compile_properties.h"

namespace nimbrel {
namespace {

struct CompilePropertiesForm : testing::Test, ScriptedPorts {};

TEST_F(CompilePropertiesForm, StoresTheEntriesUnlessCancelled) {
  CompileSettings options;
  options.nbrSubmenusFrame = "content";
  options.nbrSubmenusFrameOffset = 7;
  options.nbrImagePath = "old";
  const auto before = options;
  for (const bool cancelled : {true, false}) {
    frmCompileProperties form(asker, *this, options,
                              [&](CompileSettings accepted) { options = std::move(accepted); });
    form.click(form.Option2);
    form.enter(form.txtLibraryPath, "a/b");  // Quirk: a slash is accepted
    form.click(form.Option3);
    form.check(form.chkEnableCrossFrame, false);
    form.click(cancelled ? form.cmdCancel : form.cmdOk);
    EXPECT_EQ(options == before, cancelled);
  }
  EXPECT_EQ(options.nbrLibraryPath, "a/b");
  EXPECT_EQ(options.nbrImagePath + options.nbrSubmenusFrame, "");
  EXPECT_EQ(options.nbrSubmenusFrameOffset, 0);
}

}  // namespace
}  // namespace nimbrel
