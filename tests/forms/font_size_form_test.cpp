#include "forms/font_size_form.h"

#include <gtest/gtest.h>

namespace nimbrel {
namespace {

struct OpenForm {
  explicit OpenForm(std::string text) : size(std::move(text)) { form.Form_Activate(); }
  std::string display() const {
    return form.optBrowserSizing.value ? form.cmbBrowserSize.text
                                       : form.txtCSSSize.text + " " + form.cmbCSSUnits.text;
  }
  std::string accept(std::string_view number) {
    form.enter(form.txtCSSSize, number);
    form.click(form.cmdOk);
    return size;
  }
  std::string size;
  frmFontSize form{size};
};

TEST(FontSize, OpensWithTheSizeOfTheCell) {
  for (const auto& [size, display] : {std::pair("1in", "1 inches"),
                                      {"2.5mm", "2 milimeters"},
                                      {"medium", "medium"},
                                      {"abc", "12 points"},
                                      {"px", "12 pixels"},
                                      {"x", "12 points"}}) {
    EXPECT_EQ(OpenForm(size).display(), display) << size;
  }
}

TEST(FontSize, AcceptsWholeNumbersOfFourCharacters) {
  EXPECT_EQ(OpenForm("7px").accept("13.5"), "14px");
  EXPECT_EQ(OpenForm("7cm").accept("-3"), "-3cm");
  for (const auto* bad : {"12345", "12px", "", "9e4"}) EXPECT_EQ(OpenForm("7mm").accept(bad), "12mm") << bad;
}

TEST(FontSize, SwitchesBetweenKeywordAndNumber) {
  OpenForm number("12pt");
  number.form.click(number.form.optBrowserSizing);
  EXPECT_FALSE(number.form.txtCSSSize.usable() || number.form.cmbCSSUnits.usable());
  EXPECT_EQ(number.display(), "medium");
  number.form.choose(number.form.cmbBrowserSize, {0});
  EXPECT_EQ(number.accept("not usable"), "xx-large");

  OpenForm keyword("small");
  keyword.form.click(keyword.form.optCSSSizing);
  EXPECT_EQ(keyword.display(), "12 points");
  EXPECT_FALSE(keyword.form.cmbBrowserSize.usable());
  keyword.form.click(keyword.form.cmdCancel);
  EXPECT_EQ(keyword.size, "small");
}

}  // namespace
}  // namespace nimbrel
