#pragma once

#include "model/item_obj.h"
#include "model/menu_obj.h"
#include "model/submenu_obj.h"

/// How an element's properties reach its sheet and come back.
namespace nimbrel {

class PropertySheet;

/// Hands every property to the sheet, in the order of its rows, and has it shown.
void PutValuesToPropertyControl(const MenuObj& element, PropertySheet& sheet);
void PutValuesToPropertyControl(const SubmenuObj& element, PropertySheet& sheet);
void PutValuesToPropertyControl(const ItemObj& element, PropertySheet& sheet);

/// Takes the values of one row, in all its columns. A row without a property, or outside of the table, does
/// nothing. A byte takes a number rounded, ties to even.
void GetValueFromPropertyControl(MenuObj& element, const PropertySheet& sheet, int PropertyOrdinal);
void GetValueFromPropertyControl(SubmenuObj& element, const PropertySheet& sheet, int PropertyOrdinal);
void GetValueFromPropertyControl(ItemObj& element, const PropertySheet& sheet, int PropertyOrdinal);

}  // namespace nimbrel
