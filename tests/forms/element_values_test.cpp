#include "properties/element_values.h"

#include <gtest/gtest.h>
#include <set>

#include "fixtures.h"
#include "text/ascii.h"

namespace nimbrel {
namespace {

template <class E>
class ElementValues : public testing::Test {};
using Classes = testing::Types<MenuObj, SubmenuObj, ItemObj>;
TYPED_TEST_SUITE(ElementValues, Classes);

TYPED_TEST(ElementValues, EachPropertyHasItsOwnCellAndComesBack) {
  TestSheet<TypeParam> test;
  auto& element = test.element;
  std::set<std::pair<int, int>> cells;
  eachProperty<TypeParam>([&]<class T>(const auto& property, T TypeParam::*field) {
    if (property.name == "HasSubmenu") return;  // the only property without a row
    const auto [row, col] = test.cell(field);
    EXPECT_TRUE(cells.emplace(row, col).second && test.sheet.row(row).takes(col)) << property.name;
    const char last = property.name.back();
    if (test.table().hasStates && isDigit(last)) {
      EXPECT_EQ(slotOf(col), last - '1') << property.name;
    }
    if constexpr (std::same_as<T, SharedText>) {
      element.*field = std::to_string(cells.size());
    } else {
      element.*field = static_cast<T>(cells.size());
    }
  });
  test.fill();
  TypeParam back;
  for (int row = -1; row <= test.sheet.RowCount(); ++row) {
    const auto before = back;
    GetValueFromPropertyControl(back, test.sheet, row);
    const bool isRow = row >= 0 && row < test.sheet.RowCount() && test.sheet.row(row).Kind() != KindGroup;
    EXPECT_EQ(back != before, isRow) << row;
  }
  EXPECT_EQ(back, element);
}

TEST(ByteRows, RoundTiesToEven) {
  TestSheet<ItemObj> test;
  for (const auto& [typed, stored] : {std::pair("2.5", 2), {"3.5", 4}, {"99", 20}}) {
    test.edit(&ItemObj::BorderWidth2, typed);
    GetValueFromPropertyControl(test.element, test.sheet, test.cell(&ItemObj::BorderWidth2).row);
    EXPECT_EQ(test.element.BorderWidth2, stored);
  }
  EXPECT_EQ(test.edit(&ItemObj::BorderWidth1, "3.5"), "3.5");  // until the sheet is filled again
}

}  // namespace
}  // namespace nimbrel
