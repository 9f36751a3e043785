#pragma once

#include <span>

#include "model/titled_container.h"

namespace nimbrel {

/// The main menu: its position and behaviour, its title and its container, the box of its items.
/// A new object has empty texts and zeros until `SetDefaultValues` or a reader sets them.
struct MenuObj : TitledContainer {
  SharedText menuname;        ///< name of the main menu; its node text
  std::uint8_t MenuType = 0;  ///< layout of the main menu (vertical, horizontal, horizontal menubar)
  std::uint8_t Movable = 0;   ///< visitors of the page can drag the menu
  std::uint8_t Drifty = 0;    ///< on which kinds of scrolling the menu moves with the page
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
    {V110, "menuname",                     &MenuObj::menuname,                     "Main Menu", FileForm::Marked},
    {V110, "MenuType",                     &MenuObj::MenuType,                     0},
    {V110, "Movable",                      &MenuObj::Movable,                      1},
    {V110, "Drifty",                       &MenuObj::Drifty,                       2},
    {V110, "CornerForPositioning",         &MenuObj::CornerForPositioning,         0},
    {V110, "HorizontalDistanceFromCorner", &MenuObj::HorizontalDistanceFromCorner, 30},
    {V110, "VerticalDistanceFromCorner",   &MenuObj::VerticalDistanceFromCorner,   30},
    {V200, "StickySubmenus",               &MenuObj::StickySubmenus,               0},
    {V120, "ZIndex",                       &MenuObj::ZIndex,                       1000},
    {V110, "DisplayNameAsTitle",           &MenuObj::DisplayNameAsTitle,           1, StyleOfClass},
    {V200, "Collapsable",                  &MenuObj::Collapsable,                  0},
    {V200, "MenuHow",                      &MenuObj::MenuHow,                      0},
    {V200, "UnfoldDirection",              &MenuObj::UnfoldDirection,              1},
    {V110, "TitleImage",                   &MenuObj::TitleImage,                   notSet, FileForm::Escaped, NoStyle, Image::Yes},
    {V110, "TitleImageAlignment",          &MenuObj::TitleImageAlignment,          0, StyleOfClass},
    {V110, "TitleTextAlignment",           &MenuObj::TitleTextAlignment,           1, StyleOfClass},
    {V200, "TitleTooltip",                 &MenuObj::TitleTooltip,                 "", FileForm::Escaped},
    {V200, "TitleCursor",                  &MenuObj::TitleCursor,                  4, StyleOfClass},
    {V200, "TitlePadding",                 &MenuObj::TitlePadding,                 0, StyleOfClass},
    {V110, "TitleFontFamily",              &MenuObj::TitleFontFamily,              "sans-serif", FileForm::Raw, StyleOfClass},
    {V110, "TitleFontSize",                &MenuObj::TitleFontSize,                "4mm", FileForm::Raw, StyleOfClass},
    {V110, "TitleFontBold",                &MenuObj::TitleFontBold,                0, StyleOfClass},
    {V110, "TitleFontItalic",              &MenuObj::TitleFontItalic,              0, StyleOfClass},
    {V110, "TitleFontUnderlined",          &MenuObj::TitleFontUnderlined,          0, StyleOfClass},
    {V110, "TitleFontColor",               &MenuObj::TitleFontColor,               "#FFFFFF", FileForm::Raw, StyleOfClass},
    {V110, "TitleBGColor",                 &MenuObj::TitleBGColor,                 "#5B5B5B", FileForm::Raw, StyleOfClass},
    {V110, "TitleBorderStyle",             &MenuObj::TitleBorderStyle,             "none", FileForm::Raw, StyleOfClass},
    {V110, "TitleBorderWidth",             &MenuObj::TitleBorderWidth,             2, StyleOfClass},
    {V110, "TitleBorderColor",             &MenuObj::TitleBorderColor,             notSet, FileForm::Raw, StyleOfClass},
    {V110, "BGColor",                      &MenuObj::BGColor,                      "#C0C0C0", FileForm::Raw, StyleOfClass},
    {V110, "BGImage",                      &MenuObj::BGImage,                      notSet, FileForm::Escaped, StyleOfClass, Image::Yes},
    {V110, "BorderStyle",                  &MenuObj::BorderStyle,                  "outset", FileForm::Raw, StyleOfClass},
    {V110, "BorderWidth",                  &MenuObj::BorderWidth,                  2, StyleOfClass},
    {V110, "BorderColor",                  &MenuObj::BorderColor,                  "#C0C0C0", FileForm::Raw, StyleOfClass},
    {V110, "DistanceBetweenItems",         &MenuObj::DistanceBetweenItems,         0, StyleOfClass},
    {V110, "UniformItemWidths",            &MenuObj::UniformItemWidths,            0},
    {V110, "UniformItemHeights",           &MenuObj::UniformItemHeights,           0, StyleOfClass},
    {V200, "JavascriptOnOpen",             &MenuObj::JavascriptOnOpen,             notSet, FileForm::Escaped},
    {V200, "JavascriptOnClose",            &MenuObj::JavascriptOnClose,            notSet, FileForm::Escaped},
});
// clang-format on

constexpr std::span<const Property<MenuObj>> MenuObj::properties() { return menuProperties; }

}  // namespace nimbrel
