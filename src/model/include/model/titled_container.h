#pragma once

#include "model/properties.h"

namespace nimbrel {

/// The common part of main menus and submenus: a title, and the container, the box of the items.
struct TitledContainer {
  std::uint8_t DisplayNameAsTitle = 0;   ///< what the title shows (name and image, image only, no title)
  std::uint8_t UnfoldDirection = 0;      ///< direction of unfolding
  SharedText TitleImage;                 ///< image file of the title
  std::uint8_t TitleImageAlignment = 0;  ///< position of the image against the text
  std::uint8_t TitleTextAlignment = 0;   ///< alignment of the title content
  SharedText TitleTooltip;               ///< tooltip of the title
  std::uint8_t TitleCursor = 0;          ///< mouse cursor over the title, by list position
  float TitlePadding = 0;                ///< padding of the title
  SharedText TitleFontFamily;            ///< font of the title
  SharedText TitleFontSize;              ///< font size of the title, as text with unit or keyword
  std::uint8_t TitleFontBold = 0;        ///< title text bold
  std::uint8_t TitleFontItalic = 0;      ///< title text italic
  std::uint8_t TitleFontUnderlined = 0;  ///< title text underlined
  SharedText TitleFontColor;             ///< colour of the title text
  SharedText TitleBGColor;               ///< background colour of the title
  SharedText TitleBorderStyle;           ///< border style of the title
  std::uint8_t TitleBorderWidth = 0;     ///< border width of the title
  SharedText TitleBorderColor;           ///< border colour of the title
  SharedText BGColor;                    ///< background colour of the container
  SharedText BGImage;                    ///< background image file of the container
  SharedText BorderStyle;                ///< border style of the container
  std::uint8_t BorderWidth = 0;          ///< border width of the container
  SharedText BorderColor;                ///< border colour of the container
  float DistanceBetweenItems = 0;        ///< space between items
  std::uint8_t UniformItemWidths = 0;    ///< all items get one width
  std::uint8_t UniformItemHeights = 0;   ///< all items get one height
  SharedText JavascriptOnOpen;           ///< script run when the element opens
  SharedText JavascriptOnClose;          ///< script run when the element closes
};

}  // namespace nimbrel
