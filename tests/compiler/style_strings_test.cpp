#include "compiler/style_strings.h"

#include <gmock/gmock.h>

#include "compiler/fixtures.h"

namespace nimbrel {
namespace {

using testing::ElementsAre;

template <class E>
std::string styleOf(const E& element, void (*styleString)(const E&, std::string&)) {
  std::string call;
  styleString(element, call);
  return call;
}

template <class Container>
void expectContainerStyles(const std::string& title, const std::string& container) {
  auto c = withDistinctValues<Container>();
  c.TitleFontItalic = c.TitleFontBold = c.TitleFontUnderlined = 1;
  c.TitleBGColor = c.TitleBorderStyle = c.BorderColor = notSet;
  c.TitlePadding = 1.5F;
  c.BGImageNo = 6;
  EXPECT_EQ(styleOf<Container>(c, TitleStyleString), title);
  EXPECT_EQ(styleOf<Container>(c, ContainerStyleString), container);

  const auto hasTitle = [&](std::uint8_t display, std::string_view image) {
    c.DisplayNameAsTitle = display;
    c.TitleImage = image;
    return !styleOf<Container>(c, TitleStyleString).empty();
  };
  EXPECT_FALSE(hasTitle(0, "n"));
  EXPECT_TRUE(hasTitle(0, "t.gif"));
  EXPECT_TRUE(hasTitle(2, "n"));
}

TEST(StyleStrings, Containers) {
  expectContainerStyles<MenuObj>(
      "nbrCreateCSS(1,2,16,'TitleFontColor',n,n,'italic bold TitleFontSize "
      "TitleFontFamily','underline','n',28,"
      "'TitleBorderColor',1.5,18)",
      "nbrCreateCSS(0,1,0,n,'BGColor',5,n,n,'BorderStyle',33,n,0,0);");
  expectContainerStyles<SubmenuObj>(
      "nbrCreateCSS(1,2,12,'TitleFontColor',n,n,'italic bold TitleFontSize "
      "TitleFontFamily','underline','n',24,"
      "'TitleBorderColor',1.5,14)",
      "nbrCreateCSS(0,1,0,n,'BGColor',5,n,n,'BorderStyle',29,n,0,0);");
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

TEST(StyleCollection, NumbersDistinctCalls) {
  StyleCollection styles;
  EXPECT_EQ(styles.GetStyleID("a"), "0");
  EXPECT_EQ(styles.GetStyleID(""), "");
  EXPECT_EQ(styles.GetStyleID("A"), "1");
  EXPECT_EQ(styles.GetStyleID("a"), "0");
  EXPECT_THAT(styles.StyleStrings(), ElementsAre("a", "A"));
}

TEST(StyleCollection, NumbersAMenusItemsAheadOfItsSubmenusAndSharesWhatLooksAlike) {
  auto document = menuWithTwoSubmenus();
  get<MenuObj>(document, "M0").DisplayNameAsTitle = 0;  // no title: takes no number
  get<ItemObj>(document, "I3").BorderWidth3 = 9;
  get<SubmenuObj>(document, "S6").BGColor = "#000006";
  auto& deep = get<ItemObj>(document, "I5");  // comes to look as the titles of the submenus
  deep.FontColor1 = "#FFFFFF", deep.BGColor1 = "#5B5B5B", deep.BorderWidth1 = 2, deep.ItemCursor = 0;

  const auto numbers = [&](bool includeSubmenus) {
    StyleCollection styles;
    styles.CollectStyles(document, *document.tvTreeView.root(), includeSubmenus);
    std::vector<std::string> found{std::to_string(styles.StyleStrings().size())};
    const auto add = [&found](const std::string& key, const auto&... ids) {
      found.push_back(key + ":" + ((" " + ids.str()) + ...));
    };
    for (const auto& [key, element] : document.ElementColl) {
      if (const auto* i = std::get_if<ItemObj>(&element))
        add(key, i->ItemStyleID1, i->ItemStyleID2, i->ItemStyleID3);
      if (const auto* s = std::get_if<SubmenuObj>(&element)) add(key, s->TitleStyleID, s->ContainerStyleID);
      if (const auto* m = std::get_if<MenuObj>(&element)) add(key, m->TitleStyleID, m->ContainerStyleID);
    }
    return found;
  };
  EXPECT_EQ(numbers(false).front(), "5");
  EXPECT_THAT(numbers(true), ElementsAre("9", "M0:  0", "I1: 1 2 3", "I2: 1 2 3", "I3: 1 2 4", "S4: 5 0",
                                         "I5: 5 6 7", "S6: 5 8", "I7: 1 2 3"));
}

}  // namespace
}  // namespace nimbrel
