#pragma once

#include <span>

#include "model/titled_container.h"

namespace nimbrel {

/// The main menu, its title and its container, the box in which its items stand.
/// A new object holds empty texts and zeros until `SetDefaultValues` or a reader fills it.
struct MenuObj : TitledContainer {
  SharedText menuname;        ///< name of the main menu; its node text
  std::uint8_t MenuType = 0;  ///< layout of the main menu (vertical, horizontal, horizontal menubar)
  std::uint8_t Movable = 0;   ///< the user of the page can drag the menu
  std::uint8_t Drifty = 0;    ///< whether and on which scrolls the menu drifts
  std::uint8_t CornerForPositioning = 0;   ///< edge or corner from which the position is measured
  float HorizontalDistanceFromCorner = 0;  ///< horizontal distance from that edge
  float VerticalDistanceFromCorner = 0;    ///< vertical distance from that edge
  std::uint8_t StickySubmenus = 0;         ///< submenus stay open
  float ZIndex = 0;                        ///< stacking order value of the menu
  std::uint8_t Collapsable = 0;            ///< the main menu is a popup
  std::uint8_t MenuHow = 0;                ///< how the main menu appears (instantly, unfolding)

  /// The stored properties in file order.
  static constexpr std::span<const Property<MenuObj>> properties();

  bool operator==(const MenuObj& other) const { return sameProperties(*this, other); }
};

// clang-format off
inline constexpr auto menuProperties = std::to_array<Property<MenuObj>>({
    {"menuname",                     &MenuObj::menuname,                     "Main Menu", FileForm::Marked},
    {"MenuType",                     &MenuObj::MenuType,                     0},
    {"Movable",                      &MenuObj::Movable,                      1},
    {"Drifty",                       &MenuObj::Drifty,                       2},
    {"CornerForPositioning",         &MenuObj::CornerForPositioning,         0},
    {"HorizontalDistanceFromCorner", &MenuObj::HorizontalDistanceFromCorner, 30},
    {"VerticalDistanceFromCorner",   &MenuObj::VerticalDistanceFromCorner,   30},
    {"StickySubmenus",               &MenuObj::StickySubmenus,               0},
    {"ZIndex",                       &MenuObj::ZIndex,                       1000},
    {"DisplayNameAsTitle",           &MenuObj::DisplayNameAsTitle,           1, StyleOfClass},
    {"Collapsable",                  &MenuObj::Collapsable,                  0},
    {"MenuHow",                      &MenuObj::MenuHow,                      0},
    {"UnfoldDirection",              &MenuObj::UnfoldDirection,              1},
    {"TitleImage",                   &MenuObj::TitleImage,                   notSet, FileForm::Escaped, NoStyle, &MenuObj::TitleImageNo},
    {"TitleImageAlignment",          &MenuObj::TitleImageAlignment,          0, StyleOfClass},
    {"TitleTextAlignment",           &MenuObj::TitleTextAlignment,           1, StyleOfClass},
    {"TitleTooltip",                 &MenuObj::TitleTooltip,                 "", FileForm::Escaped},
    {"TitleCursor",                  &MenuObj::TitleCursor,                  4, StyleOfClass},
    {"TitlePadding",                 &MenuObj::TitlePadding,                 0, StyleOfClass},
    {"TitleFontFamily",              &MenuObj::TitleFontFamily,              "sans-serif", FileForm::Raw, StyleOfClass},
    {"TitleFontSize",                &MenuObj::TitleFontSize,                "4mm", FileForm::Raw, StyleOfClass},
    {"TitleFontBold",                &MenuObj::TitleFontBold,                0, StyleOfClass},
    {"TitleFontItalic",              &MenuObj::TitleFontItalic,              0, StyleOfClass},
    {"TitleFontUnderlined",          &MenuObj::TitleFontUnderlined,          0, StyleOfClass},
    {"TitleFontColor",               &MenuObj::TitleFontColor,               "#FFFFFF", FileForm::Raw, StyleOfClass},
    {"TitleBGColor",                 &MenuObj::TitleBGColor,                 "#5B5B5B", FileForm::Raw, StyleOfClass},
    {"TitleBorderStyle",             &MenuObj::TitleBorderStyle,             "none", FileForm::Raw, StyleOfClass},
    {"TitleBorderWidth",             &MenuObj::TitleBorderWidth,             2, StyleOfClass},
    {"TitleBorderColor",             &MenuObj::TitleBorderColor,             notSet, FileForm::Raw, StyleOfClass},
    {"BGColor",                      &MenuObj::BGColor,                      "#C0C0C0", FileForm::Raw, StyleOfClass},
    {"BGImage",                      &MenuObj::BGImage,                      notSet, FileForm::Escaped, StyleOfClass, &MenuObj::BGImageNo},
    {"BorderStyle",                  &MenuObj::BorderStyle,                  "outset", FileForm::Raw, StyleOfClass},
    {"BorderWidth",                  &MenuObj::BorderWidth,                  2, StyleOfClass},
    {"BorderColor",                  &MenuObj::BorderColor,                  "#C0C0C0", FileForm::Raw, StyleOfClass},
    {"DistanceBetweenItems",         &MenuObj::DistanceBetweenItems,         0, StyleOfClass},
    {"UniformItemWidths",            &MenuObj::UniformItemWidths,            0},
    {"UniformItemHeights",           &MenuObj::UniformItemHeights,           0, StyleOfClass},
    {"JavascriptOnOpen",             &MenuObj::JavascriptOnOpen,             notSet, FileForm::Escaped},
    {"JavascriptOnClose",            &MenuObj::JavascriptOnClose,            notSet, FileForm::Escaped},
});
// clang-format on
static_assert(menuProperties.size() == 39);

constexpr std::span<const Property<MenuObj>> MenuObj::properties() { return menuProperties; }

}  // namespace nimbrel
