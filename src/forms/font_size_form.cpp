#include "forms/font_size_form.h"

#include <algorithm>
#include <array>
#include <limits>

#include "text/numbers.h"

namespace nimbrel {
namespace {

constexpr std::array<std::string_view, 7> keywords{"xx-large", "x-large", "large",   "medium",
                                                   "small",    "x-small", "xx-small"};

struct CSSUnit {
  std::string_view text;
  std::string_view unit;
};
// An unknown unit counts as the first.
constexpr std::array<CSSUnit, 5> units{
    {{"points", "pt"}, {"pixels", "px"}, {"centimeters", "cm"}, {"milimeters", "mm"}, {"inches", "in"}}};

constexpr std::string_view standardKeyword = "medium";
constexpr std::string_view standardNumber = "12";

bool isKeyword(std::string_view text) { return std::ranges::find(keywords, text) != keywords.end(); }

/// The unit whose `field` is this text, or else the first.
const CSSUnit& findUnit(std::string_view CSSUnit::*field, std::string_view text) {
  const auto* found = std::ranges::find(units, text, field);
  return found == units.end() ? units.front() : *found;
}

void select(Control& box, std::string_view text) {
  const auto found = std::ranges::find(box.list, text);
  box.selected = {static_cast<std::size_t>(found - box.list.begin())};
  box.text = text;
}

/// The text as a whole number, or the default if it is not one or out of range.
std::string wholeNumber(std::string_view text, std::int32_t least, std::int32_t most) {
  const auto number = parseInteger(text);
  if (!number || *number < least || *number > most) return std::string(standardNumber);
  return std::to_string(*number);
}

}  // namespace

frmFontSize::frmFontSize(std::string& tmpFontSize)
    : Form("frmFontSize", "Set Font Size"), tmpFontSize_(tmpFontSize) {
  for (const auto keyword : keywords) cmbBrowserSize.list.emplace_back(keyword);
  for (const auto& unit : units) cmbCSSUnits.list.emplace_back(unit.text);
  optBrowserSizing.event = [this] { optBrowserSizing_Click(); };
  optCSSSizing.event = [this] { optCSSSizing_Click(); };
  cmdOk.event = [this] { cmdOk_Click(); };
  cmdCancel.event = [this] { Close(); };
  cancelButton = cmdCancel.name;
}

void frmFontSize::Form_Activate() {
  const std::string_view size = tmpFontSize_;
  const auto digits = size.substr(0, std::max<std::size_t>(size.size(), 2) - 2);
  select(cmbCSSUnits, findUnit(&CSSUnit::unit, size.substr(digits.size())).text);
  if (isKeyword(size)) {
    toFocus = &cmbBrowserSize;
    select(cmbBrowserSize, size);
    setOption(optBrowserSizing);
    optBrowserSizing_Click();
  } else {
    using Limits = std::numeric_limits<std::int32_t>;
    toFocus = &txtCSSSize;
    txtCSSSize.text = wholeNumber(digits, Limits::min(), Limits::max());
    setOption(optCSSSizing);
    optCSSSizing_Click();
  }
}

void frmFontSize::optBrowserSizing_Click() {
  cmbBrowserSize.enabled = true;
  if (cmbBrowserSize.text.empty()) select(cmbBrowserSize, standardKeyword);
  txtCSSSize.enabled = false;
  cmbCSSUnits.enabled = false;
}

void frmFontSize::optCSSSizing_Click() {
  txtCSSSize.enabled = true;
  cmbCSSUnits.enabled = true;
  if (txtCSSSize.text.empty()) txtCSSSize.text = standardNumber;
  if (cmbCSSUnits.text.empty()) select(cmbCSSUnits, units.front().text);
  cmbBrowserSize.enabled = false;
}

void frmFontSize::cmdOk_Click() {
  if (optCSSSizing.value) {
    constexpr std::size_t longest = 4;
    using Limits = std::numeric_limits<std::int16_t>;
    const std::string_view typed = txtCSSSize.text.size() > longest ? standardNumber : txtCSSSize.text;
    tmpFontSize_ = wholeNumber(typed, Limits::min(), Limits::max());
    tmpFontSize_ += findUnit(&CSSUnit::text, cmbCSSUnits.text).unit;
  } else {
    tmpFontSize_ = isKeyword(cmbBrowserSize.text) ? cmbBrowserSize.text : standardKeyword;
  }
  Close();
}

}  // namespace nimbrel
