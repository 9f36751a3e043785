#include "properties/element_rows.h"

namespace nimbrel {
namespace {

using namespace editors;

// clang-format off
constexpr auto contents = std::to_array<Choice>({{1, "Both Name & Image"}, {0, "Image Only"}});
constexpr auto itemCursors = std::to_array<Choice>({{0, "default"}, {1, "hand"}, {2, "crosshair"}, {3, "help"}, {4, "move"}, {5, "text"}, {6, "wait"}});

constexpr auto rows = std::to_array<ElementRow<ItemObj>>({
    {"Item Name",              text(),                  1320, "LE_item_name",               &ItemObj::ItemName1, &ItemObj::ItemName2, &ItemObj::ItemName3, {"Sets the name of the Item, on \"Normal\" state. Text can be combined with HTML tags."}},
    {"Item Contains",          list(contents),          1330, "LE_item_contains",           &ItemObj::DisplayNameAsTitle1, &ItemObj::DisplayNameAsTitle2, &ItemObj::DisplayNameAsTitle3, {"Specifies whether the Item displays its Name along with an Image (if specified) or only a specified Image, on \"Normal\" state"}},
    {"Item Image",             file(),                  1340, "LE_item_image",              &ItemObj::ItemImage1, &ItemObj::ItemImage2, &ItemObj::ItemImage3, {"Adds an image to the Item, on \"Normal\" state"}},
    {"Item Image Alignment",   list(imageAlignments),   1350, "LE_item_image_align",        &ItemObj::ImageAlignment1, &ItemObj::ImageAlignment2, &ItemObj::ImageAlignment3, {"Specifies how the Image aligns with the Text, on \"Normal\" state"}},
    {"Item Content Alignment", list(contentAlignments), 1950, "LE_item_content_align",      &ItemObj::ItemAlignment1, &ItemObj::ItemAlignment2, &ItemObj::ItemAlignment3, {"Specifies how the Content (both Text and Image) is aligned within the Item, on \"Normal\" state"}},
    {"Item Tooltip",           text(),                  2550, "LE_item_tooltip",            column::MouseOver, &ItemObj::ItemTooltip, "Specifies the text to be displayed as a tooltip when the user pauses the mouse pointer over the Item"},
    {"Item Cursor",            list(itemCursors),       2560, "LE_item_cursor",             column::MouseOver, &ItemObj::ItemCursor, "Specifies a different cursor to be shown when the mouse passes over the Item. Internet Explorer can show all cursors, Netscape will convert all cursors (except \"default\") to \"hand\""},
    {"Item Padding",           number(0, 50),           2570, "LE_item_padding",            &ItemObj::ItemPadding1, &ItemObj::ItemPadding2, &ItemObj::ItemPadding3, {"Specifies a number of pixels to be added between the content of the Item and its edges, on \"Normal\" state"}},
    {"Item Text Font",         fonts(),                 1360, "LE_item_text_font",          &ItemObj::FontFamily1, &ItemObj::FontFamily2, &ItemObj::FontFamily3, {"Specifies the font of the Item's text, on \"Normal\" state"}},
    {"Item Text Size",         fontSize(),              1370, "LE_item_text_size",          &ItemObj::FontSize1, &ItemObj::FontSize2, &ItemObj::FontSize3, {"Sets the font size of the Item's text, on \"Normal\" state"}},
    {"Item Text Bold",         list(yesNo),             1380, "LE_item_text_bold",          &ItemObj::FontBold1, &ItemObj::FontBold2, &ItemObj::FontBold3, {"Does the Item's text show bold on \"Normal\" state?"}},
    {"Item Text Italic",       list(yesNo),             1390, "LE_item_text_italic",        &ItemObj::FontItalic1, &ItemObj::FontItalic2, &ItemObj::FontItalic3, {"Does the Item's text show italic on \"Normal\" state?"}},
    {"Item Text Underlined",   list(yesNo),             1400, "LE_item_text_underlined",    &ItemObj::FontUnderlined1, &ItemObj::FontUnderlined2, &ItemObj::FontUnderlined3, {"Is the Item's text underlined on \"Normal\" state?"}},
    {"Item Text Color",        colour(defaultColour),   1410, "LE_item_text_color",         &ItemObj::FontColor1, &ItemObj::FontColor2, &ItemObj::FontColor3, {"Sets the color of the Item's text, on \"Normal\" state"}},
    {"\"Has Submenu\" Image",  file(),                  1420, "LE_item_has_submenu_image",  &ItemObj::HasSubmenuImage1, &ItemObj::HasSubmenuImage2, &ItemObj::HasSubmenuImage3, {"Adds an image to emphasize the existence of a submenu linked to the item, on \"Normal\" state"}},
    {"Item Border Style",      list(borderStyles),      1430, "LE_item_border_style",       &ItemObj::BorderStyle1, &ItemObj::BorderStyle2, &ItemObj::BorderStyle3, {"Specifies the style of the Item's border, on \"Normal\" state"}},
    {"Item Border Width",      number(0, 20),           1440, "LE_item_border_width",       &ItemObj::BorderWidth1, &ItemObj::BorderWidth2, &ItemObj::BorderWidth3, {"Sets the thickness of the Item's border, on \"Normal\" state"}},
    {"Item Border Color",      colour(defaultColour),   1450, "LE_item_border_color",       &ItemObj::BorderColor1, &ItemObj::BorderColor2, &ItemObj::BorderColor3, {"Specifies a color for the Item's border, on \"Normal\" state"}},
    {"Item BG Color",          colour(transparent),     1460, "LE_item_bg_color",           &ItemObj::BGColor1, &ItemObj::BGColor2, &ItemObj::BGColor3, {"Fills the Item's background with a color or shows the submenu background if left blank, on \"Normal\" state"}},
    {"Item BG Image",          file(),                  1470, "LE_item_bg_image",           &ItemObj::BGImage1, &ItemObj::BGImage2, &ItemObj::BGImage3, {"Adds an image on the Item's background or displays the Item's BG Color if left blank, on \"Normal\" state"}},
    {"Status Bar Text",        text(),                  1480, "",                           column::MouseOver, &ItemObj::StatusBarText, "Specifies the text appearing on the Status Bar when the mouse passes over the item"},
    {"Javascript Command",     text(notSet),            2310, "LE_item_javascript_command", &ItemObj::JavascriptCommand1, &ItemObj::JavascriptCommand2, &ItemObj::JavascriptCommand3, {"Specifies the Javascript code to be executed when the mouse leaves the Item, eg: alert ('Hello!'); Press F1 for important info", "Specifies the Javascript code to be executed when moving the mouse over the Item, eg: alert ('Hello!'); Press F1 for important info", "Specifies the Javascript code to be executed when clicking on the Item, eg: alert ('Hello!'); Press F1 for important info"}},
    {"URL",                    text(notSet),            1490, "LE_item_url",                column::MouseClick, &ItemObj::URL, "Specifies the URL to be opened when clicking on the Item. Press F1 for important info"},
    {"Target Frame",           text(notSet),            1500, "LE_item_target_frame",       column::MouseClick, &ItemObj::TargetFrame, "Specifies the frame where the URL opens when clicking on the Item. Press F1 for important info"},
});
// clang-format on
static_assert(rows.size() == 24);

}  // namespace

const SheetTable& itemTable() {
  static const SheetTable table{"prctlItem", "Item Properties", true, rowsOf<ItemObj>(rows)};
  return table;
}

template <>
SheetCell cellOf<ItemObj>(PropertyField<ItemObj> field) {
  return cellIn<ItemObj>(rows, field);
}

void PutValuesToPropertyControl(const ItemObj& element, SheetValues& sheet) {
  putValues<ItemObj>(rows, element, sheet);
}

void AddValuesToPropertyControl(const ItemObj& element, SheetValues& sheet) {
  addValues<ItemObj>(rows, element, sheet);
}

void GetValueFromPropertyControl(ItemObj& element, const SheetValues& sheet, int PropertyOrdinal) {
  getValue<ItemObj>(rows, element, sheet, PropertyOrdinal);
}

void PutStandardsToPropertyControl(const ItemObj& standard, SheetValues& sheet) {
  putStandards<ItemObj>(rows, standard, sheet, cellOf<ItemObj>(&ItemObj::ItemName1).row);
}

void ResetToStandards(ItemObj& element, const SheetValues& sheet, int PropertyOrdinal) {
  resetToStandards<ItemObj>(rows, element, sheet, PropertyOrdinal);
}

}  // namespace nimbrel
