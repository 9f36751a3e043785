#pragma once

#include <span>

#include "model/titled_container.h"

namespace nimbrel {

/// A submenu: when, where and how it opens, its title and its container.
/// A new object has empty texts and zeros until `SetDefaultValues` or a reader sets them.
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
    {V110, "SubmenuName",          &SubmenuObj::SubmenuName,          "0", FileForm::Marked},  // Quirk: see SubmenuType
    {V110, "DisplayNameAsTitle",   &SubmenuObj::DisplayNameAsTitle,   1, StyleOfClass | StyleOfMenu},
    {V200, "SubmenuWhen",          &SubmenuObj::SubmenuWhen,          0, StyleOfClass},
    {V200, "SubmenuWhere",         &SubmenuObj::SubmenuWhere,         -4, StyleOfClass},
    {V200, "SubmenuHow",           &SubmenuObj::SubmenuHow,           2, StyleOfClass},
    {V200, "OpenDirection",        &SubmenuObj::OpenDirection,        0, StyleOfClass},
    {V200, "UnfoldDirection",      &SubmenuObj::UnfoldDirection,      0, StyleOfClass},
    {V200, "SubmenuAlignment",     &SubmenuObj::SubmenuAlignment,     0, StyleOfClass},
    {V120, "SubmenuType",          &SubmenuObj::SubmenuType,          NoDefault{}},  // Quirk: its default goes to SubmenuName
    {V110, "TitleImage",           &SubmenuObj::TitleImage,           notSet, FileForm::Escaped, NoStyle, Image::Yes},
    {V110, "TitleImageAlignment",  &SubmenuObj::TitleImageAlignment,  0, StyleOfClass | StyleOfMenu},
    {V110, "TitleTextAlignment",   &SubmenuObj::TitleTextAlignment,   1, StyleOfClass | StyleOfMenu},
    {V200, "TitleTooltip",         &SubmenuObj::TitleTooltip,         "", FileForm::Escaped},
    {V200, "TitleCursor",          &SubmenuObj::TitleCursor,          0, StyleOfClass | StyleOfMenu},
    {V200, "TitlePadding",         &SubmenuObj::TitlePadding,         0, StyleOfClass | StyleOfMenu},
    {V110, "TitleFontFamily",      &SubmenuObj::TitleFontFamily,      "sans-serif", FileForm::Raw, StyleOfClass | StyleOfMenu},
    {V110, "TitleFontSize",        &SubmenuObj::TitleFontSize,        "4mm", FileForm::Raw, StyleOfClass | StyleOfMenu},
    {V110, "TitleFontBold",        &SubmenuObj::TitleFontBold,        0, StyleOfClass | StyleOfMenu},
    {V110, "TitleFontItalic",      &SubmenuObj::TitleFontItalic,      0, StyleOfClass | StyleOfMenu},
    {V110, "TitleFontUnderlined",  &SubmenuObj::TitleFontUnderlined,  0, StyleOfClass | StyleOfMenu},
    {V110, "TitleFontColor",       &SubmenuObj::TitleFontColor,       "#FFFFFF", FileForm::Raw, StyleOfClass | StyleOfMenu},
    {V110, "TitleBGColor",         &SubmenuObj::TitleBGColor,         notSet, FileForm::Raw, StyleOfClass | StyleOfMenu},
    {V110, "TitleBorderStyle",     &SubmenuObj::TitleBorderStyle,     "solid", FileForm::Raw, StyleOfClass | StyleOfMenu},
    {V110, "TitleBorderWidth",     &SubmenuObj::TitleBorderWidth,     2, StyleOfClass | StyleOfMenu},
    {V110, "TitleBorderColor",     &SubmenuObj::TitleBorderColor,     "#5B5B5B", FileForm::Raw, StyleOfClass | StyleOfMenu},
    {V110, "BGColor",              &SubmenuObj::BGColor,              "#C0C0C0", FileForm::Raw, StyleOfClass | StyleOfMenu},
    {V110, "BGImage",              &SubmenuObj::BGImage,              notSet, FileForm::Escaped, StyleOfClass | StyleOfMenu, Image::Yes},
    {V110, "BorderStyle",          &SubmenuObj::BorderStyle,          "outset", FileForm::Raw, StyleOfClass | StyleOfMenu},
    {V110, "BorderWidth",          &SubmenuObj::BorderWidth,          2, StyleOfClass | StyleOfMenu},
    {V110, "BorderColor",          &SubmenuObj::BorderColor,          "#C0C0C0", FileForm::Raw, StyleOfClass | StyleOfMenu},
    {V110, "DistanceBetweenItems", &SubmenuObj::DistanceBetweenItems, 0, StyleOfClass | StyleOfMenu},
    {V120, "UniformItemWidths",    &SubmenuObj::UniformItemWidths,    1, StyleOfClass | StyleOfMenu},
    {V110, "UniformItemHeights",   &SubmenuObj::UniformItemHeights,   0, StyleOfClass | StyleOfMenu},
    {V200, "JavascriptOnOpen",     &SubmenuObj::JavascriptOnOpen,     notSet, FileForm::Escaped},
    {V200, "JavascriptOnClose",    &SubmenuObj::JavascriptOnClose,    notSet, FileForm::Escaped},
});
// clang-format on

constexpr std::span<const Property<SubmenuObj>> SubmenuObj::properties() { return submenuProperties; }

}  // namespace nimbrel
