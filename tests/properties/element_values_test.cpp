#include "properties/element_values.h"

#include <concepts>
#include <gtest/gtest.h>
#include <map>
#include <set>
#include <sstream>

#include "fixtures.h"
#include "model/element.h"

namespace nimbrel {
namespace {

template <class E>
class ElementValues : public testing::Test {};
using Classes = testing::Types<MenuObj, SubmenuObj, ItemObj>;
TYPED_TEST_SUITE(ElementValues, Classes);

template <class E>
const SheetTable& tableOf() {
  if constexpr (std::same_as<E, MenuObj>) return menuTable();
  if constexpr (std::same_as<E, SubmenuObj>) return submenuTable();
  return itemTable();
}

TYPED_TEST(ElementValues, EachPropertyHasOnePlace) {
  TestSheet test(tableOf<TypeParam>());
  TypeParam element;
  PutValuesToPropertyControl(element, test.sheet);
  int next = 0;
  for (int ordinal = -1; ordinal <= test.sheet.RowCount(); ++ordinal) {
    const bool isRow = ordinal >= 0 && ordinal < test.sheet.RowCount();
    for (const int col : valueColumns) {
      if (!isRow || !test.sheet.row(ordinal).takes(col)) continue;
      ++next;
      PropertyValue value = test.sheet.GetProperty(ordinal, col);
      if (value.index() == 0) value = SharedText(std::to_string(next));
      if (value.index() == 1) value = static_cast<std::uint8_t>(next);
      if (value.index() == 2) value = static_cast<float>(next);
      test.sheet.SetProperty(ordinal, col, value);
    }
    const auto before = element;
    GetValueFromPropertyControl(element, test.sheet, ordinal);
    EXPECT_EQ(element != before, isRow && test.sheet.row(ordinal).Kind() != KindGroup) << ordinal;
  }
  std::set<std::string> values;
  eachProperty<TypeParam>([&](const auto& property, auto field) {
    std::ostringstream text;
    if constexpr (std::same_as<decltype(field), SharedText TypeParam::*>) {
      text << (element.*field).view();
    } else {
      text << +(element.*field);
    }
    EXPECT_TRUE(values.insert(text.str()).second) << property.name;
  });
  EXPECT_EQ(values.contains("0"), (std::same_as<TypeParam, ItemObj>));  // `HasSubmenu` is in no row
}

TYPED_TEST(ElementValues, DefaultsComeBackWhole) {
  TestSheet test(tableOf<TypeParam>());
  TypeParam element;
  SetDefaultValues(element);
  PutValuesToPropertyControl(element, test.sheet);
  TypeParam back;
  for (int ordinal = 0; ordinal < test.sheet.RowCount(); ++ordinal) {
    GetValueFromPropertyControl(back, test.sheet, ordinal);
  }
  EXPECT_EQ(back, element);
}

TEST(ByteRows, RoundTiesToEven) {
  TestSheet test(itemTable());
  ItemObj item;
  SetDefaultValues(item);
  PutValuesToPropertyControl(item, test.sheet);
  for (const auto& [typed, stored] : std::map<std::string, int>{{"2.5", 2}, {"3.5", 4}, {"99", 20}}) {
    test.edit(16, column::MouseOver, typed);
    GetValueFromPropertyControl(item, test.sheet, 16);
    EXPECT_EQ(item.BorderWidth2, stored);
  }
  EXPECT_EQ(test.edit(16, column::Normal, "3.5"), "3.5");  // until the sheet is filled again
}

}  // namespace
}  // namespace nimbrel
