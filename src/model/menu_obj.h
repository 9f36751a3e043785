#pragma once

#include <span>

#include "model/properties.h"

namespace nimbrel {

/// The main menu, its title and its container, the box in which its items stand.
/// A new object holds empty texts and zeros until `SetDefaultValues` or a reader fills it.
struct MenuObj {
  SharedText menuname;        ///< name of the main menu; its node text
  std::uint8_t MenuType = 0;  ///< layout of the main menu (vertical, horizontal, horizontal menubar)
  std::uint8_t Movable = 0;   ///< the user of the page can drag the menu
  std::uint8_t Drifty = 0;    ///< whether and on which scrolls the menu drifts
  std::uint8_t CornerForPositioning = 0;   ///< edge or corner from which the position is measured
  float HorizontalDistanceFromCorner = 0;  ///< horizontal distance from that edge
  float VerticalDistanceFromCorner = 0;    ///< vertical distance from that edge
  std::uint8_t StickySubmenus = 0;         ///< submenus stay open
  float ZIndex = 0;                        ///< stacking order value of the menu
  std::uint8_t DisplayNameAsTitle = 0;     ///< what the title shows (name and image, image only, no title)
  std::uint8_t Collapsable = 0;            ///< the main menu is a popup
  std::uint8_t MenuHow = 0;                ///< how the main menu appears (instantly, unfolding)
  std::uint8_t UnfoldDirection = 0;        ///< direction of unfolding
  SharedText TitleImage;                   ///< image file of the title
  std::uint8_t TitleImageAlignment = 0;    ///< position of the image against the text
  std::uint8_t TitleTextAlignment = 0;     ///< alignment of the title content
  SharedText TitleTooltip;                 ///< tooltip of the title
  std::uint8_t TitleCursor = 0;            ///< mouse cursor over the title, by list position
  float TitlePadding = 0;                  ///< padding of the title
  SharedText TitleFontFamily;              ///< font of the title
  SharedText TitleFontSize;                ///< font size of the title, as text with unit or keyword
  std::uint8_t TitleFontBold = 0;          ///< title text bold
  std::uint8_t TitleFontItalic = 0;        ///< title text italic
  std::uint8_t TitleFontUnderlined = 0;    ///< title text underlined
  SharedText TitleFontColor;               ///< colour of the title text
  SharedText TitleBGColor;                 ///< background colour of the title
  SharedText TitleBorderStyle;             ///< border style of the title
  std::uint8_t TitleBorderWidth = 0;       ///< border width of the title
  SharedText TitleBorderColor;             ///< border colour of the title
  SharedText BGColor;                      ///< background colour of the container
  SharedText BGImage;                      ///< background image file of the container
  SharedText BorderStyle;                  ///< border style of the container
  std::uint8_t BorderWidth = 0;            ///< border width of the container
  SharedText BorderColor;                  ///< border colour of the container
  float DistanceBetweenItems = 0;          ///< space between items
  std::uint8_t UniformItemWidths = 0;      ///< all items get one width
  std::uint8_t UniformItemHeights = 0;     ///< all items get one height
  SharedText JavascriptOnOpen;             ///< script run when the element opens
  SharedText JavascriptOnClose;            ///< script run when the element closes

  // Calculated by each compile, never stored, copied or compared: the numbers of shared styles as text
  // (empty: none) and of images in the compiled menu (from 1, 0: none).
  SharedText ContainerStyleID;
  SharedText TitleStyleID;
  float TitleImageNo = 0;
  float BGImageNo = 0;

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
