#include "persistence/older_records.h"

#include <array>
#include <string>

#include "persistence/property_line.h"
#include "text/numbers.h"

namespace nimbrel {
namespace {

enum class Record { Version11 = 11, Version12 = 12 };

/// One value of an older record: a property, or one that was kept for all submenus at once.
struct OlderValue {
  std::string_view name;
  Record since = Record::Version11;
};

// clang-format off
constexpr auto menuValues = std::to_array<OlderValue>({
    {"menuname"}, {"MenuType"}, {"Movable"}, {"Drifty"}, {"CornerForPositioning"},
    {"HorizontalDistanceFromCorner"}, {"VerticalDistanceFromCorner"}, {"bcSubmenusWhen"}, {"bcSubmenusWhere"},
    {"ZIndex", Record::Version12}, {"DisplayNameAsTitle"}, {"TitleImage"}, {"TitleImageAlignment"},
    {"TitleTextAlignment"}, {"TitleFontFamily"}, {"TitleFontSize"}, {"TitleFontBold"}, {"TitleFontItalic"},
    {"TitleFontUnderlined"}, {"TitleFontColor"}, {"TitleBGColor"}, {"TitleBorderStyle"}, {"TitleBorderWidth"},
    {"TitleBorderColor"}, {"BGColor"}, {"BGImage"}, {"BorderStyle"}, {"BorderWidth"}, {"BorderColor"},
    {"DistanceBetweenItems"}, {"UniformItemWidths"}, {"UniformItemHeights"}, {"bcSubmenusHow"},
});

constexpr auto submenuValues = std::to_array<OlderValue>({
    {"SubmenuName"}, {"DisplayNameAsTitle"}, {"SubmenuType", Record::Version12}, {"TitleImage"},
    {"TitleImageAlignment"}, {"TitleTextAlignment"}, {"TitleFontFamily"}, {"TitleFontSize"}, {"TitleFontBold"},
    {"TitleFontItalic"}, {"TitleFontUnderlined"}, {"TitleFontColor"}, {"TitleBGColor"}, {"TitleBorderStyle"},
    {"TitleBorderWidth"}, {"TitleBorderColor"}, {"BGColor"}, {"BGImage"}, {"BorderStyle"}, {"BorderWidth"},
    {"BorderColor"}, {"DistanceBetweenItems"}, {"UniformItemWidths", Record::Version12}, {"UniformItemHeights"},
});

constexpr auto itemValues = std::to_array<OlderValue>({
    {"ItemName1"}, {"ItemName2"}, {"ItemName3"},
    {"DisplayNameAsTitle1"}, {"DisplayNameAsTitle2"}, {"DisplayNameAsTitle3"},
    {"ItemImage1"}, {"ItemImage2"}, {"ItemImage3"},
    {"ImageAlignment1"}, {"ImageAlignment2"}, {"ImageAlignment3"},
    {"ItemAlignment1"}, {"ItemAlignment2"}, {"ItemAlignment3"},
    {"FontFamily1"}, {"FontFamily2"}, {"FontFamily3"},
    {"FontSize1"}, {"FontSize2"}, {"FontSize3"},
    {"FontBold1"}, {"FontBold2"}, {"FontBold3"},
    {"FontItalic1"}, {"FontItalic2"}, {"FontItalic3"},
    {"FontUnderlined1"}, {"FontUnderlined2"}, {"FontUnderlined3"},
    {"FontColor1"}, {"FontColor2"}, {"FontColor3"},
    {"HasSubmenuImage1"}, {"HasSubmenuImage2"}, {"HasSubmenuImage3"},
    {"BorderStyle1"}, {"BorderStyle2"}, {"BorderStyle3"},
    {"BorderWidth1"}, {"BorderWidth2"}, {"BorderWidth3"},
    {"BorderColor1"}, {"BorderColor2"}, {"BorderColor3"},
    {"BGColor1"}, {"BGColor2"}, {"BGColor3"},
    {"BGImage1"}, {"BGImage2"}, {"BGImage3"},
    {"StatusBarText"}, {"JavascriptCommand3", Record::Version12}, {"URL"}, {"TargetFrame"}, {"HasSubmenu"},
});
// clang-format on
static_assert(menuValues.size() == 33 && submenuValues.size() == 24 && itemValues.size() == 56);

bool isFontSize(std::string_view name) { return name.find("FontSize") != std::string_view::npos; }

/// Earlier releases numbered the browser's sizes.
std::string_view fontSizeKeyword(float number) {
  struct Size {
    float number;
    std::string_view keyword;
  };
  static constexpr auto sizes = std::to_array<Size>({{0, "xx-small"},
                                                     {1, "xx-small"},
                                                     {2, "x-small"},
                                                     {3, "small"},
                                                     {4, "medium"},
                                                     {5, "large"},
                                                     {6, "x-large"},
                                                     {7, "xx-large"}});
  for (const Size& size : sizes) {
    if (size.number == number) return size.keyword;
  }
  return "medium";
}

template <class Number>
Number readNumber(FileHandle& file, std::string_view name, std::optional<Number> (*parse)(std::string_view)) {
  const auto value = file.next();
  const auto number = parse(value);
  if (!number) file.fail(std::string(name) + ": " + quoted(value) + " is not a number it can hold");
  return *number;
}

/// Whether the value was one of those kept for all submenus.
bool readCarryOver(FileHandle& file, std::string_view name, SubmenuCarryOver& carryOver) {
  if (name == "bcSubmenusWhen") {
    carryOver.bcSubmenusWhen = readNumber(file, name, parseByte) == 1 ? 0 : 1;
  } else if (name == "bcSubmenusWhere") {
    carryOver.bcSubmenusWhere = readNumber(file, name, parseSingle);
  } else if (name == "bcSubmenusHow") {
    carryOver.bcSubmenusHow = readNumber(file, name, parseByte);
  } else {
    return false;
  }
  return true;
}

template <class E>
void readValue(FileHandle& file, std::string_view FPath, std::string_view name, E& element) {
  const auto& property = *findProperty<E>(name);
  if (isFontSize(name)) {
    element.*std::get<SharedText E::*>(property.field) = fontSizeKeyword(readNumber(file, name, parseSingle));
  } else {
    readProperty(file, FPath, property, element);
  }
}

void complete(MenuObj& menu, const SubmenuCarryOver&) {
  menu.Collapsable = 0;
  menu.MenuHow = 0;
  menu.UnfoldDirection = 1;
}

void complete(SubmenuObj& submenu, const SubmenuCarryOver& carryOver) {
  submenu.SubmenuWhen = carryOver.bcSubmenusWhen;
  submenu.SubmenuWhere = carryOver.bcSubmenusWhere;
  submenu.SubmenuHow = carryOver.bcSubmenusHow;
}

void complete(ItemObj&, const SubmenuCarryOver&) {}

constexpr std::span<const OlderValue> valuesOf(const MenuObj&) { return menuValues; }
constexpr std::span<const OlderValue> valuesOf(const SubmenuObj&) { return submenuValues; }
constexpr std::span<const OlderValue> valuesOf(const ItemObj&) { return itemValues; }

void readRecord(Record version, FileHandle& file, std::string_view FPath, SubmenuCarryOver& carryOver,
                Element& element) {
  std::visit(
      [&](auto& object) {
        for (const OlderValue& value : valuesOf(object)) {
          if (value.since > version || readCarryOver(file, value.name, carryOver)) continue;
          readValue(file, FPath, value.name, object);
        }
        complete(object, carryOver);
      },
      element);
}

}  // namespace

void ReadPropertiesFromFile11(FileHandle& file, std::string_view FPath, SubmenuCarryOver& carryOver,
                              Element& element) {
  readRecord(Record::Version11, file, FPath, carryOver, element);
}

void ReadPropertiesFromFile12(FileHandle& file, std::string_view FPath, SubmenuCarryOver& carryOver,
                              Element& element) {
  readRecord(Record::Version12, file, FPath, carryOver, element);
}

}  // namespace nimbrel
