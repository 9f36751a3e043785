#include "compiler/style_strings.h"

#include <gtest/gtest.h>

#include "compiler/fixtures.h"

namespace nimbrel {
namespace {

template <class E>
std::string styleOf(const E& element, void (*styleString)(const E&, std::string&)) {
  std::string call;
  styleString(element, call);
  return call;
}

TEST(StyleStrings, OfContainers) {
  auto c = withDistinctValues<MenuObj>();
  c.TitleFontItalic = c.TitleFontBold = c.TitleFontUnderlined = 1;
  c.TitleBGColor = c.TitleBorderStyle = c.BorderColor = notSet;
  c.TitlePadding = 1.5F;
  c.BGImageNo = 6;
  EXPECT_EQ(
      styleOf<MenuObj>(c, TitleStyleString),
      "nbrCreateCSS(1,2,16,'TitleFontColor',n,n,'italic bold TitleFontSize TitleFontFamily','underline',"
      "'n',28,'TitleBorderColor',1.5,18)");
  EXPECT_EQ(styleOf<MenuObj>(c, ContainerStyleString),
            "nbrCreateCSS(0,1,0,n,'BGColor',5,n,n,'BorderStyle',33,n,0,0);");
  c.DisplayNameAsTitle = 0;  // the image alone makes a title, too
  EXPECT_NE(styleOf<MenuObj>(c, TitleStyleString), "");
  c.TitleImage = notSet;
  EXPECT_EQ(styleOf<MenuObj>(c, TitleStyleString), "");
  c.DisplayNameAsTitle = 2;
  EXPECT_NE(styleOf<MenuObj>(c, TitleStyleString), "");
}

TEST(StyleStrings, EachStateOfAnItemFromItsOwnFields) {
  auto i = withDistinctValues<ItemObj>();  // whose flags are neither 0 nor 1, which is off
  i.BGImage1No = 21, i.BGImage2No = -1, i.BGImage3No = 23;
  i.FontItalic1 = i.FontBold2 = i.FontUnderlined3 = 1;
  EXPECT_EQ(
      styleOf(i, ItemStyleString1),
      "nbrCreateCSS(1,2,13,'FontColor1','BGColor1',20,'italic FontSize1 FontFamily1',n,'BorderStyle1',45,"
      "'BorderColor1',18,17)");
  EXPECT_EQ(styleOf(i, ItemStyleString2),
            "nbrCreateCSS(0,2,14,'FontColor2','BGColor2',n,'bold FontSize2 FontFamily2',n,'BorderStyle2',46,"
            "'BorderColor2',19,17)");
  EXPECT_EQ(
      styleOf(i, ItemStyleString3),
      "nbrCreateCSS(0,2,15,'FontColor3','BGColor3',22,'FontSize3 FontFamily3','underline','BorderStyle3',47,"
      "'BorderColor3',20,17)");
}

TEST(StyleStrings, OfAnItemThatDiffersInOneValueAreItsOwn) {
  eachProperty<ItemObj>([](const Property<ItemObj>& property, auto field) {
    auto document = menuWithTwoSubmenus();
    auto& item = get<ItemObj>(document, "I3");  // else as I1 and I2 ahead of it
    if constexpr (std::is_same_v<decltype(field), SharedText ItemObj::*>) {
      item.*field = "other";
    } else {
      item.*field = 9;
    }
    StyleCollection styles;
    styles.CollectStyles(document, *document.tvTreeView.root(), true);
    const auto numbered = [&](const SharedText& id) {
      return styles.StyleStrings().at(std::stoul(id.str()));
    };
    EXPECT_EQ(numbered(item.ItemStyleID1), styleOf(item, ItemStyleString1)) << property.name;
    EXPECT_EQ(numbered(item.ItemStyleID2), styleOf(item, ItemStyleString2)) << property.name;
    EXPECT_EQ(numbered(item.ItemStyleID3), styleOf(item, ItemStyleString3)) << property.name;
    EXPECT_EQ(get<ItemObj>(document, "I7").ItemStyleID1, get<ItemObj>(document, "I1").ItemStyleID1);
  });
}

}  // namespace
}  // namespace nimbrel
