#include "properties/font_size_form.h"

#include <gtest/gtest.h>

namespace nimbrel {
namespace {

struct Opened {
  explicit Opened(std::string text) : size(std::move(text)) { form.Form_Activate(); }
  std::string says() const {
    return form.optBrowserSizing.value ? form.cmbBrowserSize.text
                                       : form.txtCSSSize.text + " " + form.cmbCSSUnits.text;
  }
  std::string ok(std::string_view number) {
    form.enter(form.txtCSSSize, number);
    form.click(form.cmdOk);
    return size;
  }
  std::string size;
  frmFontSize form{size};
};

TEST(FontSize, OpensWithWhatStoodThere) {
  EXPECT_EQ(Opened("12pt").says(), "12 points");
  EXPECT_EQ(Opened("1in").says(), "1 inches");
  EXPECT_EQ(Opened("2.5mm").says(), "2 milimeters");
  EXPECT_EQ(Opened("medium").says(), "medium");
  EXPECT_EQ(Opened("abc").says(), "12 points");
  EXPECT_EQ(Opened("px").says(), "12 pixels");
  EXPECT_EQ(Opened("").says(), "12 points");
  EXPECT_EQ(Opened("x").says(), "12 points");
}

TEST(FontSize, TakesWholeNumbersOfFourCharacters) {
  EXPECT_EQ(Opened("").ok("12.5"), "12pt");
  EXPECT_EQ(Opened("7px").ok("13.5"), "14px");
  EXPECT_EQ(Opened("7cm").ok("-3"), "-3cm");
  for (const auto* bad : {"12345", "12px", "", "9e4"}) EXPECT_EQ(Opened("7mm").ok(bad), "12mm") << bad;
}

TEST(FontSize, ChangesBetweenTheTwoWays) {
  Opened opened("12pt");
  opened.form.click(opened.form.optBrowserSizing);
  EXPECT_FALSE(opened.form.txtCSSSize.usable() || opened.form.cmbCSSUnits.usable());
  EXPECT_EQ(opened.says(), "medium");
  opened.form.choose(opened.form.cmbBrowserSize, {0});
  EXPECT_EQ(opened.ok("not usable"), "xx-large");

  Opened canceled("small");
  canceled.form.click(canceled.form.optCSSSizing);
  EXPECT_EQ(canceled.says(), "12 points");
  canceled.form.click(canceled.form.cmdCancel);
  EXPECT_EQ(canceled.size, "small");
}

}  // namespace
}  // namespace nimbrel
