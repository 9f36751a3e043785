#include "properties/element_rows.h"

namespace nimbrel {
namespace {

using namespace editors;

// clang-format off
constexpr auto submenuTypes = std::to_array<Choice>({{0, "Vertical"}, {1, "Horizontal"}});
constexpr auto occasions = std::to_array<Choice>({{0, "On Mouse Over"}, {1, "On Mouse Click"}});
constexpr auto openDirections = std::to_array<Choice>({{0, "Auto"}, {1, "Always Right/Below parent submenu"}, {2, "Always Left/Above parent submenu"}});
constexpr auto waysToOpen = std::to_array<Choice>({{1, "Unfolding 1"}, {2, "Unfolding 2"}, {0, "Instantly"}});
constexpr auto unfoldDirections = std::to_array<Choice>({{0, "Auto"}, {1, "Right"}, {2, "Left"}, {3, "Downwards"}, {4, "Upwards"}});
constexpr auto submenuAlignments = std::to_array<Choice>({{0, "Item that opens the submenu"}, {1, "Top/Left edge of parent submenu"}, {2, "Bottom/Right of edge parent submenu"}, {3, "Centered to parent submenu"}});
constexpr auto contents = std::to_array<Choice>({{1, "Both <Submenu Name> and <Title Image> (if any)"}, {0, "<Title Image> Only"}, {2, "Do not show Title"}});

constexpr auto rows = std::to_array<ElementRow<SubmenuObj>>({
    {"Submenu Name",                    text(),                  1100, "LE_submenu_name",                    &SubmenuObj::SubmenuName,          "Sets the name of the submenu"},
    {"Submenu Type",                    list(submenuTypes),      1000, "LE_submenu_type",                    &SubmenuObj::SubmenuType,          "Is the submenu Vertical or Horizontal?"},
    {"Submenu Opens - When",            list(occasions),         1070, "LE_submenu_open_when",               &SubmenuObj::SubmenuWhen,          "When does the submenu open? When mouse passes over or when clicking on its parent item?"},
    {"Submenu Opens - Where",           list(openDirections),    2520, "LE_submenu_open_where",              &SubmenuObj::OpenDirection,        "Where does the submenu open relative to its parent submenu? \"Auto\" lets the submenu decide where to open on-the-fly so that it doesn't open outside the window area"},
    {"Submenu Opens - At Distance",     number(-200, 200),       1080, "LE_submenu_open_at",                 &SubmenuObj::SubmenuWhere,         "How many pixels away from the parent element does the submenu open?"},
    {"Submenu Opens - How",             list(waysToOpen),        1090, "LE_submenu_open_how",                &SubmenuObj::SubmenuHow,           "Specifies how the Submenu appears: \"Instantly\" or in a smooth, \"Unfolding\" manner?"},
    {"Submenu Unfolds Towards",         list(unfoldDirections),  2530, "LE_submenu_unfolds_towards",         &SubmenuObj::UnfoldDirection,      "Used only if <Submenu Opens - How> is \"Unfolding\". Shows the direction, towards which the submenu unfolds. \"Auto\" matches the unfolding direction with the <Submenu Opens-Where> opening side"},
    {"Submenu Aligns with",             list(submenuAlignments), 2540, "LE_submenu_aligns_with",             &SubmenuObj::SubmenuAlignment,     "Specifies how the submenu aligns with its parent element"},
    {"Title Contains",                  list(contents),          1110, "LE_submenu_title_contains",          &SubmenuObj::DisplayNameAsTitle,   "Specifies whether the Submenu shows a Title or not. All Title properties have no effect if this property is set to \"Do not show Title\""},
    {"Title Image",                     file(),                  1120, "LE_submenu_title_image",             &SubmenuObj::TitleImage,           "Displays an image on the Title, or only the Name if left blank"},
    {"Title Image Alignment",           list(imageAlignments),   1130, "LE_submenu_title_image_alignment",   &SubmenuObj::TitleImageAlignment,  "Specifies how the Image aligns with the Text"},
    {"Title Content Alignment",         list(contentAlignments), 1140, "LE_submenu_title_content_alignment", &SubmenuObj::TitleTextAlignment,   "Specifies how the Content (both Text and Image) is aligned on the Title"},
    {"Title Tooltip",                   text(),                  2470, "LE_submenu_title_tooltip",           &SubmenuObj::TitleTooltip,         "Specifies the text to be displayed as a tooltip when the user pauses the mouse pointer over the Title"},
    {"Title Cursor",                    list(titleCursors),      2480, "LE_submenu_title_cursor",            &SubmenuObj::TitleCursor,          "Specifies a different cursor to be shown when the mouse passes over the Title. N.B.: Netscape will convert all cursors (except \"default\") to \"hand\""},
    {"Title Padding",                   number(0, 50),           2490, "LE_submenu_title_padding",           &SubmenuObj::TitlePadding,         "Specifies the number of pixels to be added between the content of the Title and its edges"},
    {"Title Text Font",                 fonts(),                 1150, "LE_submenu_title_text_font",         &SubmenuObj::TitleFontFamily,      "Sets the font of the Title's text"},
    {"Title Text Size",                 fontSize(),              1160, "LE_submenu_title_text_size",         &SubmenuObj::TitleFontSize,        "Sets the font size of the Title's text"},
    {"Title Text Bold",                 list(yesNo),             1170, "LE_submenu_title_text_bold",         &SubmenuObj::TitleFontBold,        "Does the Title's text show bold?"},
    {"Title Text Italic",               list(yesNo),             1180, "LE_submenu_title_text_italic",       &SubmenuObj::TitleFontItalic,      "Does the Title's text show italic?"},
    {"Title Text Underlined",           list(yesNo),             1190, "LE_submenu_title_text_underlined",   &SubmenuObj::TitleFontUnderlined,  "Is the Title's text underlined?"},
    {"Title Text Color",                colour(defaultColour),   1200, "LE_submenu_title_text_color",        &SubmenuObj::TitleFontColor,       "Sets the color of the Title's text"},
    {"Title BG Color",                  colour(transparent),     1940, "LE_submenu_title_bg_color",          &SubmenuObj::TitleBGColor,         "Fills the Title's background with a color or shows the submenu's background if left blank"},
    {"Title Border Style",              list(borderStyles),      1210, "LE_submenu_title_border_style",      &SubmenuObj::TitleBorderStyle,     "Specifies the style of the Title's border"},
    {"Title Border Width",              number(0, 20),           1220, "LE_submenu_title_border_width",      &SubmenuObj::TitleBorderWidth,     "Sets the thickness of the Title's border"},
    {"Title Border Color",              colour(defaultColour),   1230, "LE_submenu_title_border_color",      &SubmenuObj::TitleBorderColor,     "Specifies a color for the Title's border"},
    {"Submenu BG Color",                colour(transparent),     1240, "LE_submenu_bg_color",                &SubmenuObj::BGColor,              "Fills the submenu's background with a color or shows it transparent if left blank"},
    {"Submenu BG Image",                file(),                  1250, "LE_submenu_bg_image",                &SubmenuObj::BGImage,              "Displays an image on the submenus's background, or the BG Color if left blank"},
    {"Submenu Border Style",            list(borderStyles),      1260, "LE_submenu_border_style",            &SubmenuObj::BorderStyle,          "Specifies the style of the submenus's border"},
    {"Submenu Border Width",            number(0, 20),           1270, "LE_submenu_border_width",            &SubmenuObj::BorderWidth,          "Sets the thickness of the submenu's border"},
    {"Submenu Border Color",            colour(defaultColour),   1280, "LE_submenu_border_color",            &SubmenuObj::BorderColor,          "Specifies a color for the submenu's border"},
    {"Distance Between Items",          number(0, 200),          1290, "LE_submenu_distance_between",        &SubmenuObj::DistanceBetweenItems, "Specifies the vertical distance between the adjacent items of the submenu"},
    {"Uniform Item Widths",             list(yesNo),             1300, "LE_submenu_uniform_widths",          &SubmenuObj::UniformItemWidths,    "Should items have equal widths (yes) or have their widths vary according to their content (no)?"},
    {"Uniform Item Heights",            list(yesNo),             1310, "LE_submenu_uniform_heights",         &SubmenuObj::UniformItemHeights,   "Should items have equal heights (yes) or have their heights vary according to their content (no)?"},
    {"Javascript Command on Appear",    text(notSet),            2500, "LE_submenu_javascript_command",      &SubmenuObj::JavascriptOnOpen,     "Specifies a javascript code to be executed when the Submenu appears"},
    {"Javascript Command on Disappear", text(notSet),            2510, "LE_submenu_javascript_command",      &SubmenuObj::JavascriptOnClose,    "Specifies a javascript code to be executed when the Submenu disappears"},
});
// clang-format on
static_assert(rows.size() == 35);

}  // namespace

const SheetTable& submenuTable() {
  static const SheetTable table{"prctlSubmenu", "Submenu Properties", false, rowsOf<SubmenuObj>(rows)};
  return table;
}

template <>
SheetCell cellOf<SubmenuObj>(PropertyField<SubmenuObj> field) {
  return cellIn<SubmenuObj>(rows, field);
}

void PutValuesToPropertyControl(const SubmenuObj& element, SheetValues& sheet) {
  putValues<SubmenuObj>(rows, element, sheet);
}

void AddValuesToPropertyControl(const SubmenuObj& element, SheetValues& sheet) {
  addValues<SubmenuObj>(rows, element, sheet);
}

void GetValueFromPropertyControl(SubmenuObj& element, const SheetValues& sheet, int PropertyOrdinal) {
  getValue<SubmenuObj>(rows, element, sheet, PropertyOrdinal);
}

void PutStandardsToPropertyControl(const SubmenuObj& standard, SheetValues& sheet) {
  putStandards<SubmenuObj>(rows, standard, sheet, cellOf<SubmenuObj>(&SubmenuObj::SubmenuName).row);
}

void ResetToStandards(SubmenuObj& element, const SheetValues& sheet, int PropertyOrdinal) {
  resetToStandards<SubmenuObj>(rows, element, sheet, PropertyOrdinal);
}

}  // namespace nimbrel
