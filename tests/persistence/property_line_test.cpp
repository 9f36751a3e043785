#include "persistence/property_line.h"

#include <gtest/gtest.h>

#include "support/generated_document.h"

namespace nimbrel {
namespace {

ItemObj defaultItem() {
  ItemObj item;
  SetDefaultValues(item);
  return item;
}

/// Reads a line as the record of an element of the same class.
template <class E>
E readBack(const std::string& line) {
  Findings notes;
  FileHandle file("menu.nbr", line, notes);
  Element element = E{};
  RecordReader20(file, "C:\\menus").ReadPropertiesFromFile20(element);
  EXPECT_TRUE(file.atEnd());
  return std::get<E>(element);
}

TEST(PropertyLine, EscapesCommasWhereItsFormSaysSo) {
  ItemObj item = defaultItem();
  item.ItemName1 = " a, b ";
  item.URL = "a.html?x=1,2";
  item.FontFamily1 = "Verdana,Arial";
  const auto line = ParameterString(item);
  EXPECT_TRUE(line.starts_with("! a\xB3 b !,!Item!,!Item!,1,1,1,n,")) << line;
  EXPECT_NE(line.find(",a.html?x=1\xB3"
                      "2,"),
            std::string::npos);
  EXPECT_NE(line.find(",Verdana,Arial,"), std::string::npos) << "kept: a raw comma stands as it is";
  EXPECT_TRUE(line.ends_with(",0,[nbrEI]"));
}

TEST(PropertyLine, IsReadByName) {
  const auto item = readBack<ItemObj>(
      "!1!,!2!,!3!,4,5,6,7,8,9,10,11,12,13,14,15,16,17,18,19,20,21,22,23,24,25,26,27,28,29,30,31,32,33,34,35,"
      "36,37,38,"
      "39,40,41,42,43,44,45,46,47,48,49,50,51,52,53,54,55,56,!57!,58,59,60,61,62,63,[nbrEI]");
  EXPECT_EQ(item.ItemName3, "3");
  EXPECT_EQ(item.ItemImage2, "8");
  EXPECT_EQ(item.ItemTooltip, "16");
  EXPECT_EQ(item.ItemPadding1, 18);
  EXPECT_EQ(item.FontUnderlined3, 35);
  EXPECT_EQ(item.HasSubmenuImage1, "39");
  EXPECT_EQ(item.BorderWidth2, 46);
  EXPECT_EQ(item.BGImage3, "56");
  EXPECT_EQ(item.StatusBarText, "57");
  EXPECT_EQ(item.JavascriptCommand3, "60");
  EXPECT_EQ(item.TargetFrame, "62");
  EXPECT_EQ(item.HasSubmenu, -1);
}

TEST(PropertyLine, ChangesAFewValuesOnTheWay) {
  ItemObj item = defaultItem();
  item.HasSubmenu = 5;
  item.ItemTooltip = " 10 m\xB3 ";
  item.StatusBarText = " \"quoted\" ";
  item.URL = "\"a\"b";
  item.BGImage1 = "*\\a.gif";
  const auto back = readBack<ItemObj>(ParameterString(item));
  EXPECT_EQ(back.HasSubmenu, -1);                 // kept: any number but 0 is a flag
  EXPECT_EQ(back.ItemTooltip, "10 m,");           // kept: outer blanks go, the escape character is a comma
  EXPECT_EQ(back.StatusBarText, " \"quoted\" ");  // marks keep both
  EXPECT_EQ(back.URL, "a");
  EXPECT_EQ(back.BGImage1, "C:\\menus\\a.gif");
}

TEST(PropertyLine, OfAnyElementIsReadBackEqual) {
  const Document document = generatedDocument(3, 60);
  for (const auto& [key, element] : document.ElementColl) {
    std::visit(
        [&]<class E>(const E& object) {
          const auto line = ParameterString(object);
          EXPECT_EQ(readBack<E>(line), object) << line;
        },
        element);
  }
}

}  // namespace
}  // namespace nimbrel
