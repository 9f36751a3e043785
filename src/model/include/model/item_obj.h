#pragma once

#include <span>

#include "model/properties.h"

namespace nimbrel {

/// An item. Most properties exist three times, for the states 1 Normal, 2 Mouse Over and 3 Mouse Click.
/// A new object has empty texts and zeros until `SetDefaultValues` or a reader sets them.
struct ItemObj {
  SharedText ItemName1;                  ///< text of the item in state 1
  SharedText ItemName2;                  ///< text of the item in state 2
  SharedText ItemName3;                  ///< text of the item in state 3
  std::uint8_t DisplayNameAsTitle1 = 0;  ///< what the item shows in state 1 (name, image)
  std::uint8_t DisplayNameAsTitle2 = 0;  ///< what the item shows in state 2 (name, image)
  std::uint8_t DisplayNameAsTitle3 = 0;  ///< what the item shows in state 3 (name, image)
  SharedText ItemImage1;                 ///< image file of the item in state 1
  SharedText ItemImage2;                 ///< image file of the item in state 2
  SharedText ItemImage3;                 ///< image file of the item in state 3
  std::uint8_t ImageAlignment1 = 0;      ///< position of the image against the text in state 1
  std::uint8_t ImageAlignment2 = 0;      ///< position of the image against the text in state 2
  std::uint8_t ImageAlignment3 = 0;      ///< position of the image against the text in state 3
  std::uint8_t ItemAlignment1 = 0;       ///< alignment of the content in state 1
  std::uint8_t ItemAlignment2 = 0;       ///< alignment of the content in state 2
  std::uint8_t ItemAlignment3 = 0;       ///< alignment of the content in state 3
  SharedText ItemTooltip;                ///< tooltip of the item
  std::uint8_t ItemCursor = 0;           ///< mouse cursor over the item, by list position
  float ItemPadding1 = 0;                ///< padding in state 1
  float ItemPadding2 = 0;                ///< padding in state 2
  float ItemPadding3 = 0;                ///< padding in state 3
  SharedText FontFamily1;                ///< font in state 1
  SharedText FontFamily2;                ///< font in state 2
  SharedText FontFamily3;                ///< font in state 3
  SharedText FontSize1;                  ///< font size in state 1, as text with unit or keyword
  SharedText FontSize2;                  ///< font size in state 2, as text with unit or keyword
  SharedText FontSize3;                  ///< font size in state 3, as text with unit or keyword
  std::uint8_t FontBold1 = 0;            ///< bold in state 1
  std::uint8_t FontBold2 = 0;            ///< bold in state 2
  std::uint8_t FontBold3 = 0;            ///< bold in state 3
  std::uint8_t FontItalic1 = 0;          ///< italic in state 1
  std::uint8_t FontItalic2 = 0;          ///< italic in state 2
  std::uint8_t FontItalic3 = 0;          ///< italic in state 3
  std::uint8_t FontUnderlined1 = 0;      ///< underlined in state 1
  std::uint8_t FontUnderlined2 = 0;      ///< underlined in state 2
  std::uint8_t FontUnderlined3 = 0;      ///< underlined in state 3
  SharedText FontColor1;                 ///< text colour in state 1
  SharedText FontColor2;                 ///< text colour in state 2
  SharedText FontColor3;                 ///< text colour in state 3
  SharedText HasSubmenuImage1;           ///< image that marks an item with a submenu, in state 1
  SharedText HasSubmenuImage2;           ///< image that marks an item with a submenu, in state 2
  SharedText HasSubmenuImage3;           ///< image that marks an item with a submenu, in state 3
  SharedText BorderStyle1;               ///< border style in state 1
  SharedText BorderStyle2;               ///< border style in state 2
  SharedText BorderStyle3;               ///< border style in state 3
  std::uint8_t BorderWidth1 = 0;         ///< border width in state 1
  std::uint8_t BorderWidth2 = 0;         ///< border width in state 2
  std::uint8_t BorderWidth3 = 0;         ///< border width in state 3
  SharedText BorderColor1;               ///< border colour in state 1
  SharedText BorderColor2;               ///< border colour in state 2
  SharedText BorderColor3;               ///< border colour in state 3
  SharedText BGColor1;                   ///< background colour in state 1
  SharedText BGColor2;                   ///< background colour in state 2
  SharedText BGColor3;                   ///< background colour in state 3
  SharedText BGImage1;                   ///< background image file in state 1
  SharedText BGImage2;                   ///< background image file in state 2
  SharedText BGImage3;                   ///< background image file in state 3
  SharedText StatusBarText;              ///< text for the browser status bar
  SharedText JavascriptCommand1;         ///< script command of state 1
  SharedText JavascriptCommand2;         ///< script command of state 2
  SharedText JavascriptCommand3;         ///< script command of state 3
  SharedText URL;                        ///< address that the item opens
  SharedText TargetFrame;                ///< frame or window in which the address opens
  float HasSubmenu = 0;  ///< stored as a flag; whether there is a submenu follows from the tree alone

  /// The stored properties in file order.
  static constexpr std::span<const Property<ItemObj>> properties();

  bool operator==(const ItemObj& other) const { return sameProperties(*this, other); }
};

// clang-format off
inline constexpr auto itemProperties = std::to_array<Property<ItemObj>>({
    {V110, "ItemName1",           &ItemObj::ItemName1,           "Item", FileForm::Marked},
    {V110, "ItemName2",           &ItemObj::ItemName2,           "Item", FileForm::Marked},
    {V110, "ItemName3",           &ItemObj::ItemName3,           "Item", FileForm::Marked},
    {V110, "DisplayNameAsTitle1", &ItemObj::DisplayNameAsTitle1, 1, StyleOfClass},
    {V110, "DisplayNameAsTitle2", &ItemObj::DisplayNameAsTitle2, 1, StyleOfClass},
    {V110, "DisplayNameAsTitle3", &ItemObj::DisplayNameAsTitle3, 1, StyleOfClass},
    {V110, "ItemImage1",          &ItemObj::ItemImage1,          notSet, FileForm::Escaped, NoStyle, Image::Yes},
    {V110, "ItemImage2",          &ItemObj::ItemImage2,          notSet, FileForm::Escaped, NoStyle, Image::Yes},
    {V110, "ItemImage3",          &ItemObj::ItemImage3,          notSet, FileForm::Escaped, NoStyle, Image::Yes},
    {V110, "ImageAlignment1",     &ItemObj::ImageAlignment1,     0, StyleOfClass},
    {V110, "ImageAlignment2",     &ItemObj::ImageAlignment2,     0, StyleOfClass},
    {V110, "ImageAlignment3",     &ItemObj::ImageAlignment3,     0, StyleOfClass},
    {V110, "ItemAlignment1",      &ItemObj::ItemAlignment1,      1, StyleOfClass},
    {V110, "ItemAlignment2",      &ItemObj::ItemAlignment2,      1, StyleOfClass},
    {V110, "ItemAlignment3",      &ItemObj::ItemAlignment3,      1, StyleOfClass},
    {V200, "ItemTooltip",         &ItemObj::ItemTooltip,         "", FileForm::Escaped},
    {V200, "ItemCursor",          &ItemObj::ItemCursor,          1, StyleOfClass},
    {V200, "ItemPadding1",        &ItemObj::ItemPadding1,        0, StyleOfClass},
    {V200, "ItemPadding2",        &ItemObj::ItemPadding2,        0, StyleOfClass},
    {V200, "ItemPadding3",        &ItemObj::ItemPadding3,        0, StyleOfClass},
    {V110, "FontFamily1",         &ItemObj::FontFamily1,         "sans-serif", FileForm::Raw, StyleOfClass},
    {V110, "FontFamily2",         &ItemObj::FontFamily2,         "sans-serif", FileForm::Raw, StyleOfClass},
    {V110, "FontFamily3",         &ItemObj::FontFamily3,         "sans-serif", FileForm::Raw, StyleOfClass},
    {V110, "FontSize1",           &ItemObj::FontSize1,           "4mm", FileForm::Raw, StyleOfClass},
    {V110, "FontSize2",           &ItemObj::FontSize2,           "4mm", FileForm::Raw, StyleOfClass},
    {V110, "FontSize3",           &ItemObj::FontSize3,           "4mm", FileForm::Raw, StyleOfClass},
    {V110, "FontBold1",           &ItemObj::FontBold1,           0, StyleOfClass},
    {V110, "FontBold2",           &ItemObj::FontBold2,           0, StyleOfClass},
    {V110, "FontBold3",           &ItemObj::FontBold3,           0, StyleOfClass},
    {V110, "FontItalic1",         &ItemObj::FontItalic1,         0, StyleOfClass},
    {V110, "FontItalic2",         &ItemObj::FontItalic2,         0, StyleOfClass},
    {V110, "FontItalic3",         &ItemObj::FontItalic3,         0, StyleOfClass},
    {V110, "FontUnderlined1",     &ItemObj::FontUnderlined1,     0, StyleOfClass},
    {V110, "FontUnderlined2",     &ItemObj::FontUnderlined2,     0, StyleOfClass},
    {V110, "FontUnderlined3",     &ItemObj::FontUnderlined3,     0, StyleOfClass},
    {V110, "FontColor1",          &ItemObj::FontColor1,          "#000000", FileForm::Raw, StyleOfClass},
    {V110, "FontColor2",          &ItemObj::FontColor2,          "#FFFFFF", FileForm::Raw, StyleOfClass},
    {V110, "FontColor3",          &ItemObj::FontColor3,          "#FFFFFF", FileForm::Raw, StyleOfClass},
    {V110, "HasSubmenuImage1",    &ItemObj::HasSubmenuImage1,    notSet, FileForm::Escaped, StyleOfClass, Image::Yes},
    {V110, "HasSubmenuImage2",    &ItemObj::HasSubmenuImage2,    notSet, FileForm::Escaped, StyleOfClass, Image::Yes},
    {V110, "HasSubmenuImage3",    &ItemObj::HasSubmenuImage3,    notSet, FileForm::Escaped, StyleOfClass, Image::Yes},
    {V110, "BorderStyle1",        &ItemObj::BorderStyle1,        "none", FileForm::Raw, StyleOfClass},
    {V110, "BorderStyle2",        &ItemObj::BorderStyle2,        "none", FileForm::Raw, StyleOfClass},
    {V110, "BorderStyle3",        &ItemObj::BorderStyle3,        "none", FileForm::Raw, StyleOfClass},
    {V110, "BorderWidth1",        &ItemObj::BorderWidth1,        1, StyleOfClass},
    {V110, "BorderWidth2",        &ItemObj::BorderWidth2,        1, StyleOfClass},
    {V110, "BorderWidth3",        &ItemObj::BorderWidth3,        1, StyleOfClass},
    {V110, "BorderColor1",        &ItemObj::BorderColor1,        notSet, FileForm::Raw, StyleOfClass},
    {V110, "BorderColor2",        &ItemObj::BorderColor2,        notSet, FileForm::Raw, StyleOfClass},
    {V110, "BorderColor3",        &ItemObj::BorderColor3,        notSet, FileForm::Raw, StyleOfClass},
    {V110, "BGColor1",            &ItemObj::BGColor1,            notSet, FileForm::Raw, StyleOfClass},
    {V110, "BGColor2",            &ItemObj::BGColor2,            "#000080", FileForm::Raw, StyleOfClass},
    {V110, "BGColor3",            &ItemObj::BGColor3,            "#408080", FileForm::Raw, StyleOfClass},
    {V110, "BGImage1",            &ItemObj::BGImage1,            notSet, FileForm::Escaped, StyleOfClass, Image::Yes},
    {V110, "BGImage2",            &ItemObj::BGImage2,            notSet, FileForm::Escaped, StyleOfClass, Image::Yes},
    {V110, "BGImage3",            &ItemObj::BGImage3,            notSet, FileForm::Escaped, StyleOfClass, Image::Yes},
    {V110, "StatusBarText",       &ItemObj::StatusBarText,       "", FileForm::Marked},
    {V200, "JavascriptCommand1",  &ItemObj::JavascriptCommand1,  notSet, FileForm::Escaped},
    {V200, "JavascriptCommand2",  &ItemObj::JavascriptCommand2,  notSet, FileForm::Escaped},
    {V120, "JavascriptCommand3",  &ItemObj::JavascriptCommand3,  notSet, FileForm::Escaped},
    {V110, "URL",                 &ItemObj::URL,                 notSet, FileForm::Escaped},
    {V110, "TargetFrame",         &ItemObj::TargetFrame,         notSet, FileForm::Escaped},
    {V110, "HasSubmenu",          &ItemObj::HasSubmenu,          0, NoStyle, FileForm::Flag},
});
// clang-format on

constexpr std::span<const Property<ItemObj>> ItemObj::properties() { return itemProperties; }

}  // namespace nimbrel
