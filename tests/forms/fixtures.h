#pragma once

#include "forms/property_sheet.h"
#include "model/element.h"
#include "properties/element_values.h"
#include "support/scripted_ports.h"

namespace nimbrel {

/// The sheet of an element with its ports. Records the caption of each row that raises `Change`.
template <class E>
struct TestSheet : ScriptedPorts {
  TestSheet() : sheet(table(), {asker, *this, fonts, menuFolder, tmpFontSize}, viewer) {
    sheet.Change = [this](int ordinal) { changes.emplace_back(sheet.row(ordinal).Caption); };
    SetDefaultValues(element);
    fill();
  }
  void fill() { PutValuesToPropertyControl(element, sheet); }
  static const SheetTable& table() {
    if constexpr (std::same_as<E, MenuObj>) return menuTable();
    if constexpr (std::same_as<E, SubmenuObj>) return submenuTable();
    return itemTable();
  }

  static SheetCell cell(PropertyField<E> field) { return cellOf<E>(field); }
  void enter(PropertyField<E> field) { sheet.EnterCell(cell(field).row, cell(field).column); }
  /// Types `text` into a cell and returns what the cell then shows.
  std::string edit(PropertyField<E> field, std::string_view text) {
    enter(field);
    sheet.type(text);
    sheet.LeaveCell();
    return sheet.Shown(cell(field).row, cell(field).column).str();
  }
  std::string value(PropertyField<E> field) const {
    return std::get<SharedText>(sheet.GetProperty(cell(field).row, cell(field).column)).str();
  }
  E element;
  const std::vector<std::string> fonts{"Zapf", "arial"};
  const std::string menuFolder = "C:\\site";
  std::string tmpFontSize;
  frmLiveExamples viewer{"C:\\program"};
  PropertySheet sheet;
  std::vector<std::string> changes;
};

}  // namespace nimbrel
