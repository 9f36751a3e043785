#pragma once

#include <array>
#include <cmath>
#include <concepts>
#include <optional>
#include <span>
#include <stdexcept>
#include <utility>

#include "model/properties.h"
#include "properties/element_values.h"
#include "properties/property_row.h"
#include "properties/sheet_values.h"

/// The building blocks of the three tables of rows, and the loops over them.
namespace nimbrel {

/// A row with the members of its element, one per slot.
template <class E>
struct ElementRow : PropertyRow {
  using Field = std::variant<std::monostate, SharedText E::*, std::uint8_t E::*, float E::*>;
  using Text = std::string_view;

  /// A heading.
  consteval ElementRow(Text caption) : PropertyRow{caption, {KindGroup}} {}  // NOLINT(google-explicit-*)
  /// One value, on a sheet with one value column.
  consteval ElementRow(Text caption, CellEditor e, int topic, Text page, Field field, Text help)
      : PropertyRow{caption, e, topic, page, {help}}, fields{field} {}
  /// One value, in one of the three columns.
  consteval ElementRow(Text caption, CellEditor e, int topic, Text page, int col, Field field, Text help)
      : PropertyRow{caption, e, topic, page, {}, col} {
    fields[slotOf(col)] = field;
    HelpText[slotOf(col)] = help;
  }
  /// A value for each state.
  consteval ElementRow(Text caption, CellEditor e, int topic, Text page, Field normal, Field over,
                       Field click, std::array<Text, valueColumns.size()> help)
      : PropertyRow{caption, e, topic, page, help}, fields{normal, over, click} {}

  std::array<Field, valueColumns.size()> fields;
};

namespace editors {

// clang-format off
inline constexpr auto yesNo = std::to_array<Choice>({{1, "yes"}, {0, "no"}});
inline constexpr auto imageAlignments = std::to_array<Choice>({{0, "Above Text"}, {1, "Right of Text"}, {2, "Below Text"}, {3, "Left of Text"}});
inline constexpr auto contentAlignments = std::to_array<Choice>({{0, "Left"}, {1, "Center"}, {2, "Right"}});
inline constexpr auto titleCursors = std::to_array<Choice>({{0, "default (arrow)"}, {1, "hand"}, {2, "crosshair"}, {3, "help"}, {4, "move"}, {5, "text"}, {6, "wait"}});
inline constexpr auto borderStyles = std::to_array<Choice>({{Choice::itself, "none"}, {Choice::itself, "solid"}, {Choice::itself, "outset"}, {Choice::itself, "inset"}});
// clang-format on

inline constexpr std::string_view defaultColour = "(Default_Foreground_Color)";
inline constexpr std::string_view transparent = "(Transparent)";

consteval CellEditor text(std::string_view BlankValue = {}) { return {KindText, {}, BlankValue}; }
consteval CellEditor number(std::int16_t MinValue, std::int16_t MaxValue) {
  return {KindNumber, {}, {}, "0", MinValue, MaxValue};
}
consteval CellEditor file() { return {KindFile, {}, notSet, "(no_image)"}; }
consteval CellEditor fontSize() { return {KindFontSize}; }
consteval CellEditor colour(std::string_view BlankText) { return {KindColour, {}, notSet, BlankText}; }
consteval CellEditor list(std::span<const Choice> choices) { return {KindList, choices}; }
consteval CellEditor fonts() { return {KindSortedList}; }

}  // namespace editors

template <class E>
std::vector<const PropertyRow*> rowsOf(std::span<const ElementRow<E>> rows) {
  std::vector<const PropertyRow*> pointers;
  for (const auto& row : rows) pointers.push_back(&row);
  return pointers;
}

/// Calls `f(column, member pointer)` for each member of a row.
template <class E, class F>
void eachField(const ElementRow<E>& row, F&& f) {
  for (std::size_t slot = 0; slot < row.fields.size(); ++slot) {
    std::visit(
        [&]<class M>(M field) {
          if constexpr (!std::same_as<M, std::monostate>) f(valueColumns[slot], field);
        },
        row.fields[slot]);
  }
}

template <class E>
SheetCell cellIn(std::span<const ElementRow<E>> rows, const PropertyField<E>& wanted) {
  for (std::size_t row = 0; row < rows.size(); ++row) {
    std::optional<int> column;
    eachField(rows[row], [&](int col, auto field) {
      if (PropertyField<E>(field) == wanted) column = col;
    });
    if (column) return {static_cast<int>(row), *column};
  }
  throw std::out_of_range("no row shows this property");
}

template <class E>
void putValues(std::span<const ElementRow<E>> rows, const E& element, SheetValues& sheet) {
  for (std::size_t ordinal = 0; ordinal < rows.size(); ++ordinal) {
    eachField(rows[ordinal], [&](int col, auto field) {
      sheet.SetProperty(static_cast<int>(ordinal), col, element.*field);
    });
  }
  sheet.RefreshPropertyValues();
}

template <class E>
void addValues(std::span<const ElementRow<E>> rows, const E& element, SheetValues& sheet) {
  for (std::size_t ordinal = 0; ordinal < rows.size(); ++ordinal) {
    eachField(rows[ordinal], [&](int col, auto field) {
      sheet.AddProperty(static_cast<int>(ordinal), col, element.*field);
    });
  }
}

template <class E>
void putStandards(std::span<const ElementRow<E>> rows, const E& standard, SheetValues& sheet, int nameRow) {
  for (int ordinal = 0; std::cmp_less(ordinal, rows.size()); ++ordinal) {
    if (ordinal == nameRow) continue;
    eachField(rows[static_cast<std::size_t>(ordinal)],
              [&](int col, auto field) { sheet.SetStandard(ordinal, col, standard.*field); });
  }
}

/// A text in a number property counts as 0.
inline void assign(std::uint8_t& to, const PropertyValue& value) {
  const auto* number = std::get_if<float>(&value);
  const auto* byte = std::get_if<std::uint8_t>(&value);
  to = number != nullptr ? static_cast<std::uint8_t>(std::nearbyint(*number)) : byte != nullptr ? *byte : 0;
}
inline void assign(float& to, const PropertyValue& value) {
  const auto* number = std::get_if<float>(&value);
  to = number != nullptr ? *number : 0;
}
inline void assign(SharedText& to, const PropertyValue& value) { to = std::get<SharedText>(value); }

template <class E>
void getValue(std::span<const ElementRow<E>> rows, E& element, const SheetValues& sheet, int ordinal) {
  if (std::cmp_less(ordinal, 0) || std::cmp_greater_equal(ordinal, rows.size())) return;
  eachField(rows[static_cast<std::size_t>(ordinal)], [&](int col, auto field) {
    if (!sheet.HasSeveralValues(ordinal, col)) assign(element.*field, sheet.ValueToStore(ordinal, col));
  });
}

template <class E>
void resetToStandards(std::span<const ElementRow<E>> rows, E& element, const SheetValues& sheet, int wanted) {
  for (int ordinal = 0; std::cmp_less(ordinal, rows.size()); ++ordinal) {
    if (wanted >= 0 && ordinal != wanted) continue;
    eachField(rows[static_cast<std::size_t>(ordinal)], [&](int col, auto field) {
      if (sheet.IsChanged(ordinal, col)) assign(element.*field, *sheet.Standard(ordinal, col));
    });
  }
}

}  // namespace nimbrel
