#include "properties/element_rows.h"

namespace nimbrel {
namespace {

using namespace editors;

// clang-format off
constexpr auto drifts = std::to_array<Choice>({{1, "Yes - On Both Scrolls"}, {2, "Yes - On Vertical Scroll Only"}, {3, "Yes - On Horizontal Scroll Only"}, {0, "No - Menu remains static"}});
constexpr auto corners = std::to_array<Choice>({{0, "Top Left Corner"}, {1, "Top Right Corner"}, {2, "Bottom Right Corner"}, {3, "Bottom Left Corner"}, {4, "Left Edge - Vertically Centered"}, {5, "Top Edge - Horizontally Centered"}, {6, "Right Edge - Vertically Centered"}, {7, "Bottom Edge - Horizontally Centered"}});
constexpr auto menuTypes = std::to_array<Choice>({{0, "Vertical"}, {1, "Horizontal"}, {2, "Horizontal Menubar"}});
constexpr auto waysToAppear = std::to_array<Choice>({{0, "Instantly"}, {1, "Unfold 1"}, {2, "Unfold 2"}});
constexpr auto unfoldDirections = std::to_array<Choice>({{1, "Right"}, {2, "Left"}, {3, "Downwards"}, {4, "Upwards"}});
constexpr auto contents = std::to_array<Choice>({{1, "Both <Main Menu Name> and <Title Image> (if any)"}, {0, "<Title Image> Only"}, {2, "Do not show Title"}});

constexpr auto rows = std::to_array<ElementRow<MenuObj>>({
    {"Global Properties"},
    {"Movable",                         list(yesNo),             1020, "LE_movable",                      &MenuObj::Movable,                      "Should the user be able to relocate the menu on the Web Page?"},
    {"Menu Drifts on Scroll",           list(drifts),            1030, "LE_menu_drifts_on_scroll",        &MenuObj::Drifty,                       "Should the menu drift on the page when the user scrolls the page? If yes, how?"},
    {"Position Relative to",            list(corners),           1040, "LE_position_relative_to",         &MenuObj::CornerForPositioning,         "Specifies the corner where the menu is positioned or the edge where the menu is centered"},
    {"Horizontal Distance from Edge ",  number(0, 2000),         1050, "LE_horizontal_distance_edge",     &MenuObj::HorizontalDistanceFromCorner, ""},
    {"Vertical Distance from Edge",     number(0, 2000),         1060, "LE_vertical_distance_edge",       &MenuObj::VerticalDistanceFromCorner,   ""},
    {"Sticky Submenus",                 list(yesNo),             2420, "LE_sticky_submenus",              &MenuObj::StickySubmenus,               "Should submenus keep their open status when the mouse moves away from the menu area?"},
    {"Z-Index",                         number(-1000, 1000),     2330, "LE_z_index",                      &MenuObj::ZIndex,                       ""},
    {"Main Menu Properties"},
    {"Main Menu Name",                  text(),                  1100, "LE_main_menu_name",               &MenuObj::menuname,                     "Sets the name of the Main Menu"},
    {"Main Menu Type",                  list(menuTypes),         1000, "LE_main_menu_type",               &MenuObj::MenuType,                     "Is the Main Menu Vertical or Horizontal?"},
    {"PopUp",                           list(yesNo),             2430, "LE_popup",                        &MenuObj::Collapsable,                  "Set this property to \"yes\" if you wish your menu to appear ONLY after a specific Javascript function is called"},
    {"Main Menu Appears - How",         list(waysToAppear),      2440, "LE_main_menu_appears",            &MenuObj::MenuHow,                      "Specifies how the Main Menu appears: \"Instantly\" or in a smooth, \"Unfolding\" manner?"},
    {"Main Menu Unfolds Towards",       list(unfoldDirections),  2450, "LE_main_menu_unfolds",            &MenuObj::UnfoldDirection,              "Used only if <Main Menu Appears How> is set to \"Unfolding\". Shows the direction, towards which the Main Menu unfolds"},
    {"Title Contains",                  list(contents),          1110, "LE_title_contains",               &MenuObj::DisplayNameAsTitle,           "Specifies whether the Main Menu shows a Title or not. All Title properties have no effect if this property is set to \"Do not show Title\""},
    {"Title Image",                     file(),                  1120, "LE_title_image",                  &MenuObj::TitleImage,                   "Displays an image on the Title, or only the Name if left blank"},
    {"Title Image Alignment",           list(imageAlignments),   1130, "LE_title_image_alignment",        &MenuObj::TitleImageAlignment,          "Specifies how the Image aligns with the Text"},
    {"Title Content Alignment",         list(contentAlignments), 1140, "LE_title_content_align",          &MenuObj::TitleTextAlignment,           "Specifies how the Content (both Text and Image) is aligned on the Title"},
    {"Title Tooltip",                   text(),                  2470, "LE_title_tooltip",                &MenuObj::TitleTooltip,                 "Specifies the text to be displayed as a tooltip when the user pauses the mouse pointer over the Title"},
    {"Title Cursor",                    list(titleCursors),      2480, "LE_title_cursor",                 &MenuObj::TitleCursor,                  "Specifies a different cursor to be shown when the mouse passes over the Title. N.B.: Netscape 4 will convert all cursors (except \"default\") to \"hand\""},
    {"Title Padding",                   number(0, 50),           2490, "LE_title_padding",                &MenuObj::TitlePadding,                 ""},
    {"Title Text Font",                 fonts(),                 1150, "LE_title_font",                   &MenuObj::TitleFontFamily,              "Sets the font of the Title's text"},
    {"Title Text Size",                 fontSize(),              1160, "LE_title_size",                   &MenuObj::TitleFontSize,                "Sets the font size of the Title's text"},
    {"Title Text Bold",                 list(yesNo),             1170, "LE_title_bold",                   &MenuObj::TitleFontBold,                "Does the Title's text show bold?"},
    {"Title Text Italic",               list(yesNo),             1180, "LE_title_italic",                 &MenuObj::TitleFontItalic,              "Does the Title's text show italic?"},
    {"Title Text Underlined",           list(yesNo),             1190, "LE_title_underlined",             &MenuObj::TitleFontUnderlined,          "Is the Title's text underlined?"},
    {"Title Text Color",                colour(defaultColour),   1200, "LE_title_text_color",             &MenuObj::TitleFontColor,               "Sets the color of the Title's text"},
    {"Title BG Color",                  colour(transparent),     1940, "LE_title_bg_color",               &MenuObj::TitleBGColor,                 "Fills the Title's background with a color or shows the Main Menu's background if left blank"},
    {"Title Border Style",              list(borderStyles),      1210, "LE_title_border_style",           &MenuObj::TitleBorderStyle,             "Specifies the style of the Title's border"},
    {"Title Border Width",              number(0, 20),           1220, "LE_title_border_width",           &MenuObj::TitleBorderWidth,             ""},
    {"Title Border Color",              colour(defaultColour),   1230, "LE_title_border_color",           &MenuObj::TitleBorderColor,             "Specifies a color for the Title's border"},
    {"Main Menu BG Color",              colour(transparent),     1240, "LE_main_menu_bg_color",           &MenuObj::BGColor,                      "Fills the Main Menu's background with a color or shows it transparent if left blank"},
    {"Main Menu BG Image",              file(),                  1250, "LE_main_menu_bg_image",           &MenuObj::BGImage,                      "Displays an image on the Main Menu's background, or the BG Color if left blank"},
    {"Main Menu Border Style",          list(borderStyles),      1260, "LE_main_menu_border_style",       &MenuObj::BorderStyle,                  "Specifies the style of the Main Menu's border"},
    {"Main Menu Border Width",          number(0, 20),           1270, "LE_main_menu_border_width",       &MenuObj::BorderWidth,                  ""},
    {"Main Menu Border Color",          colour(defaultColour),   1280, "LE_main_menu_border_color",       &MenuObj::BorderColor,                  "Specifies a color for the Main Menu's border"},
    {"Distance Between Items",          number(0, 200),          1290, "LE_distance_between_items",       &MenuObj::DistanceBetweenItems,         ""},
    {"Uniform Item Widths",             list(yesNo),             1300, "LE_uniform_item_widths",          &MenuObj::UniformItemWidths,            "Should items have equal widths (yes) or have their widths vary according to their content (no)?  Applies only to horizontal menus"},
    {"Uniform Item Heights",            list(yesNo),             1310, "LE_uniform_item_heights",         &MenuObj::UniformItemHeights,           "Should items have equal heights (yes) or have their heights vary according to their content (no)?  Applies only to vertical menus"},
    {"Javascript Command on Appear",    text(notSet),            2500, "LE_main_menu_javascript_command", &MenuObj::JavascriptOnOpen,             "Specifies a javascript code to be executed when the menu appears"},
    {"Javascript Command on Disappear", text(notSet),            2510, "LE_main_menu_javascript_command", &MenuObj::JavascriptOnClose,            "Specifies a javascript code to be executed when the menu disappears"},
});
// clang-format on
static_assert(rows.size() == 41);

}  // namespace

const SheetTable& menuTable() {
  static const SheetTable table{"prctlMenu", "Global Properties and Main Menu Properties", false,
                                rowsOf<MenuObj>(rows)};
  return table;
}

template <>
SheetCell cellOf<MenuObj>(PropertyField<MenuObj> field) {
  return cellIn<MenuObj>(rows, field);
}

void PutValuesToPropertyControl(const MenuObj& element, SheetValues& sheet) {
  putValues<MenuObj>(rows, element, sheet);
}

void AddValuesToPropertyControl(const MenuObj& element, SheetValues& sheet) {
  addValues<MenuObj>(rows, element, sheet);
}

void GetValueFromPropertyControl(MenuObj& element, const SheetValues& sheet, int PropertyOrdinal) {
  getValue<MenuObj>(rows, element, sheet, PropertyOrdinal);
}

void PutStandardsToPropertyControl(const MenuObj& standard, SheetValues& sheet) {
  putStandards<MenuObj>(rows, standard, sheet, cellOf<MenuObj>(&MenuObj::menuname).row);
}

void ResetToStandards(MenuObj& element, const SheetValues& sheet, int PropertyOrdinal) {
  resetToStandards<MenuObj>(rows, element, sheet, PropertyOrdinal);
}

}  // namespace nimbrel
