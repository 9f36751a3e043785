#pragma once

#include <cstdint>
#include <variant>

#include "model/item_obj.h"
#include "model/menu_obj.h"
#include "model/submenu_obj.h"

/// Moves the properties of an element to its sheet and back.
namespace nimbrel {

class SheetValues;

/// A cell that shows a property: the `PropertyOrdinal` of its row and its column.
struct SheetCell {
  int row;
  int column;
};

template <class E>
using PropertyField = std::variant<SharedText E::*, std::uint8_t E::*, float E::*>;

/// The cell of a property on the sheet of its element. Throws std::out_of_range for a property without a row.
template <class E>
SheetCell cellOf(PropertyField<E> field);
template <>
SheetCell cellOf<MenuObj>(PropertyField<MenuObj> field);
template <>
SheetCell cellOf<SubmenuObj>(PropertyField<SubmenuObj> field);
template <>
SheetCell cellOf<ItemObj>(PropertyField<ItemObj> field);

/// Fills the sheet with all properties, in the order of its rows.
void PutValuesToPropertyControl(const MenuObj& element, SheetValues& sheet);
void PutValuesToPropertyControl(const SubmenuObj& element, SheetValues& sheet);
void PutValuesToPropertyControl(const ItemObj& element, SheetValues& sheet);

/// Adds the values of one more element to those that fill the sheet. `RefreshPropertyValues` then updates the texts.
void AddValuesToPropertyControl(const MenuObj& element, SheetValues& sheet);
void AddValuesToPropertyControl(const SubmenuObj& element, SheetValues& sheet);
void AddValuesToPropertyControl(const ItemObj& element, SheetValues& sheet);

/// Stores the values of one row, in all its columns, in the element. Leaves it those of cells with several values.
/// Does nothing for a heading or a row outside the table. A byte property stores a number rounded, ties to even.
void GetValueFromPropertyControl(MenuObj& element, const SheetValues& sheet, int PropertyOrdinal);
void GetValueFromPropertyControl(SubmenuObj& element, const SheetValues& sheet, int PropertyOrdinal);
void GetValueFromPropertyControl(ItemObj& element, const SheetValues& sheet, int PropertyOrdinal);

/// Tells the sheet the default of each property but the names, which have none.
void PutStandardsToPropertyControl(const MenuObj& standard, SheetValues& sheet);
void PutStandardsToPropertyControl(const SubmenuObj& standard, SheetValues& sheet);
void PutStandardsToPropertyControl(const ItemObj& standard, SheetValues& sheet);

/// Sets the properties of one row, or with -1 of all rows, to the defaults that the sheet knows.
void ResetToStandards(MenuObj& element, const SheetValues& sheet, int PropertyOrdinal);
void ResetToStandards(SubmenuObj& element, const SheetValues& sheet, int PropertyOrdinal);
void ResetToStandards(ItemObj& element, const SheetValues& sheet, int PropertyOrdinal);

}  // namespace nimbrel
