#include "properties/sheet_values.h"

#include <algorithm>

#include "text/ascii.h"

namespace nimbrel {
namespace {

constexpr std::array<std::string_view, 5> genericFonts{"serif", "sans-serif", "cursive", "fantasy",
                                                       "monospace"};

constexpr const char* severalValues = "(several values)";

ChoiceList fontList(const std::vector<std::string>& installed) {
  ChoiceList list;
  list.DisplayTexts.assign(genericFonts.begin(), genericFonts.end());
  list.DisplayTexts.insert(list.DisplayTexts.end(), installed.begin(), installed.end());
  list.StoredValues.assign(list.DisplayTexts.begin(), list.DisplayTexts.end());
  return list;
}

ChoiceList choiceList(std::span<const Choice> choices) {
  ChoiceList list;
  for (const auto& choice : choices) {
    const SharedText text = choice.DisplayText;
    list.DisplayTexts.push_back(text);
    if (choice.StoredValue == Choice::itself) {
      list.StoredValues.emplace_back(text);
    } else {
      list.StoredValues.emplace_back(static_cast<std::uint8_t>(choice.StoredValue));
    }
  }
  return list;
}

}  // namespace

SheetValues::SheetValues(const SheetTable& table, const std::vector<std::string>& fonts)
    : table_(table),
      fonts_(fontList(fonts)),
      sortedFonts_(fonts_.DisplayTexts.begin(), fonts_.DisplayTexts.end()),
      cells_(table.rows.size()) {
  std::ranges::sort(sortedFonts_, {}, [](const auto& text) { return lowered(text); });
  choices_.reserve(table_.rows.size());  // rules_ points into it
  for (const PropertyRow* row : table_.rows) {
    const auto& editor = row->editor;
    const ChoiceList& choices = choices_.emplace_back(choiceList(editor.choices));
    const PropertyValue blank =
        editor.Kind == KindNumber ? PropertyValue(0.F) : SharedText(editor.BlankValue);
    rules_.push_back({row, blank, editor.BlankText, editor.Kind == KindSortedList ? &fonts_ : &choices});
  }
}

const CellRules& SheetValues::rules(int PropertyOrdinal) const {
  return rules_.at(static_cast<std::size_t>(PropertyOrdinal));
}

const SheetValues::Cell& SheetValues::cell(int PropertyOrdinal, int col) const {
  return cells_.at(static_cast<std::size_t>(PropertyOrdinal))[slotOf(col)];
}

SheetValues::Cell& SheetValues::cell(int PropertyOrdinal, int col) {
  return cells_.at(static_cast<std::size_t>(PropertyOrdinal))[slotOf(col)];
}

void SheetValues::SetProperty(int PropertyOrdinal, int col, PropertyValue Value) {
  auto& one = cell(PropertyOrdinal, col);
  one.value = std::move(Value);
  one.original.reset();
  one.isSeveral = false;
}

void SheetValues::AddProperty(int PropertyOrdinal, int col, const PropertyValue& Value) {
  auto& one = cell(PropertyOrdinal, col);
  one.isSeveral = one.isSeveral || !sameValue(one.original ? *one.original : one.value, Value);
}

const PropertyValue& SheetValues::GetProperty(int PropertyOrdinal, int col) const {
  return cell(PropertyOrdinal, col).value;
}

const PropertyValue& SheetValues::ValueToStore(int PropertyOrdinal, int col) const {
  const auto& one = cell(PropertyOrdinal, col);
  return one.original ? *one.original : one.value;
}

void SheetValues::RefreshPropertyValues() {
  ++fillings_;
  for (std::size_t i = 0; i < cells_.size(); ++i) {
    const CellRules& ofRow = rules_[i];
    for (std::size_t slot = 0; slot < columns(); ++slot) {
      if (!ofRow.row->takes(valueColumns[slot])) continue;
      Cell& one = cells_[i][slot];
      if (one.isSeveral) {
        one.text = severalValues;
        continue;
      }
      const PropertyValue given = one.value;
      one.text = FormatCellText(ofRow, one.value);
      if (!sameValue(given, one.value)) one.original = given;
    }
  }
}

void SheetValues::SetStandard(int PropertyOrdinal, int col, PropertyValue Value) {
  cell(PropertyOrdinal, col).standard = std::move(Value);
}

const std::optional<PropertyValue>& SheetValues::Standard(int PropertyOrdinal, int col) const {
  return cell(PropertyOrdinal, col).standard;
}

bool SheetValues::IsChanged(int PropertyOrdinal, int col) const {
  const auto& one = cell(PropertyOrdinal, col);
  if (!one.standard) return false;
  return one.isSeveral || !sameValue(*one.standard, ValueToStore(PropertyOrdinal, col));
}

bool SheetValues::enterText(int PropertyOrdinal, int col, std::string_view text) {
  Cell& entered = cell(PropertyOrdinal, col);
  if (entered.isSeveral && text == severalValues) return false;
  const PropertyValue old = entered.value;
  std::string line(text);  // a line end would end the value in a menu file
  std::ranges::replace_if(
      line, [](char c) { return c == '\r' || c == '\n'; }, ' ');
  entered.value = ParseCellText(rules(PropertyOrdinal), line, old);
  entered.text = FormatCellText(rules(PropertyOrdinal), entered.value);
  if (sameValue(entered.value, old) && !entered.isSeveral) return false;
  entered.original.reset();
  entered.isSeveral = false;
  return true;
}

void SheetValues::replicateNormal(int PropertyOrdinal) {
  for (const int col : {column::MouseOver, column::MouseClick}) {
    auto standard = std::move(cell(PropertyOrdinal, col).standard);
    cell(PropertyOrdinal, col) = cell(PropertyOrdinal, column::Normal);
    cell(PropertyOrdinal, col).standard = std::move(standard);
  }
}

}  // namespace nimbrel
