#pragma once

#include <span>

#include "model/titled_container.h"

namespace nimbrel {

/// A submenu: when, where and how it opens, its title and its container.
/// A new object holds empty texts and zeros until `SetDefaultValues` or a reader fills it.
struct SubmenuObj : TitledContainer {
  SharedText SubmenuName;             ///< name of the submenu; its node text
  std::uint8_t SubmenuWhen = 0;       ///< when the submenu opens
  float SubmenuWhere = 0;             ///< distance at which it opens
  std::uint8_t SubmenuHow = 0;        ///< how it opens (instantly, unfolding)
  std::uint8_t OpenDirection = 0;     ///< where it opens
  std::uint8_t SubmenuAlignment = 0;  ///< what the submenu aligns with
  std::uint8_t SubmenuType = 0;       ///< layout of the submenu

  /// The stored properties in file order.
  static constexpr std::span<const Property<SubmenuObj>> properties();

  bool operator==(const SubmenuObj& other) const { return sameProperties(*this, other); }
};

// clang-format off
inline constexpr auto submenuProperties = std::to_array<Property<SubmenuObj>>({
    {"SubmenuName",          &SubmenuObj::SubmenuName,          "0", FileForm::Marked},  // kept, see SubmenuType
    {"DisplayNameAsTitle",   &SubmenuObj::DisplayNameAsTitle,   1, StyleOfClass | StyleOfMenu},
    {"SubmenuWhen",          &SubmenuObj::SubmenuWhen,          0, StyleOfClass},
    {"SubmenuWhere",         &SubmenuObj::SubmenuWhere,         -4, StyleOfClass},
    {"SubmenuHow",           &SubmenuObj::SubmenuHow,           2, StyleOfClass},
    {"OpenDirection",        &SubmenuObj::OpenDirection,        0, StyleOfClass},
    {"UnfoldDirection",      &SubmenuObj::UnfoldDirection,      0, StyleOfClass},
    {"SubmenuAlignment",     &SubmenuObj::SubmenuAlignment,     0, StyleOfClass},
    {"SubmenuType",          &SubmenuObj::SubmenuType,          NoDefault{}},  // kept: its default goes to SubmenuName
    {"TitleImage",           &SubmenuObj::TitleImage,           notSet, FileForm::Escaped, NoStyle, &SubmenuObj::TitleImageNo},
    {"TitleImageAlignment",  &SubmenuObj::TitleImageAlignment,  0, StyleOfClass | StyleOfMenu},
    {"TitleTextAlignment",   &SubmenuObj::TitleTextAlignment,   1, StyleOfClass | StyleOfMenu},
    {"TitleTooltip",         &SubmenuObj::TitleTooltip,         "", FileForm::Escaped},
    {"TitleCursor",          &SubmenuObj::TitleCursor,          0, StyleOfClass | StyleOfMenu},
    {"TitlePadding",         &SubmenuObj::TitlePadding,         0, StyleOfClass | StyleOfMenu},
    {"TitleFontFamily",      &SubmenuObj::TitleFontFamily,      "sans-serif", FileForm::Raw, StyleOfClass | StyleOfMenu},
    {"TitleFontSize",        &SubmenuObj::TitleFontSize,        "4mm", FileForm::Raw, StyleOfClass | StyleOfMenu},
    {"TitleFontBold",        &SubmenuObj::TitleFontBold,        0, StyleOfClass | StyleOfMenu},
    {"TitleFontItalic",      &SubmenuObj::TitleFontItalic,      0, StyleOfClass | StyleOfMenu},
    {"TitleFontUnderlined",  &SubmenuObj::TitleFontUnderlined,  0, StyleOfClass | StyleOfMenu},
    {"TitleFontColor",       &SubmenuObj::TitleFontColor,       "#FFFFFF", FileForm::Raw, StyleOfClass | StyleOfMenu},
    {"TitleBGColor",         &SubmenuObj::TitleBGColor,         notSet, FileForm::Raw, StyleOfClass | StyleOfMenu},
    {"TitleBorderStyle",     &SubmenuObj::TitleBorderStyle,     "solid", FileForm::Raw, StyleOfClass | StyleOfMenu},
    {"TitleBorderWidth",     &SubmenuObj::TitleBorderWidth,     2, StyleOfClass | StyleOfMenu},
    {"TitleBorderColor",     &SubmenuObj::TitleBorderColor,     "#5B5B5B", FileForm::Raw, StyleOfClass | StyleOfMenu},
    {"BGColor",              &SubmenuObj::BGColor,              "#C0C0C0", FileForm::Raw, StyleOfClass | StyleOfMenu},
    {"BGImage",              &SubmenuObj::BGImage,              notSet, FileForm::Escaped, StyleOfClass | StyleOfMenu, &SubmenuObj::BGImageNo},
    {"BorderStyle",          &SubmenuObj::BorderStyle,          "outset", FileForm::Raw, StyleOfClass | StyleOfMenu},
    {"BorderWidth",          &SubmenuObj::BorderWidth,          2, StyleOfClass | StyleOfMenu},
    {"BorderColor",          &SubmenuObj::BorderColor,          "#C0C0C0", FileForm::Raw, StyleOfClass | StyleOfMenu},
    {"DistanceBetweenItems", &SubmenuObj::DistanceBetweenItems, 0, StyleOfClass | StyleOfMenu},
    {"UniformItemWidths",    &SubmenuObj::UniformItemWidths,    1, StyleOfClass | StyleOfMenu},
    {"UniformItemHeights",   &SubmenuObj::UniformItemHeights,   0, StyleOfClass | StyleOfMenu},
    {"JavascriptOnOpen",     &SubmenuObj::JavascriptOnOpen,     notSet, FileForm::Escaped},
    {"JavascriptOnClose",    &SubmenuObj::JavascriptOnClose,    notSet, FileForm::Escaped},
});
// clang-format on
static_assert(submenuProperties.size() == 35);

constexpr std::span<const Property<SubmenuObj>> SubmenuObj::properties() { return submenuProperties; }

}  // namespace nimbrel
