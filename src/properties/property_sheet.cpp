#include "properties/property_sheet.h"

#include <algorithm>

#include "properties/font_size_form.h"
#include "text/ascii.h"

namespace nimbrel {
namespace {

constexpr std::array<std::string_view, 5> genericFonts{"serif", "sans-serif", "cursive", "fantasy",
                                                       "monospace"};

/// Formats that browsers show and a compile can measure.
constexpr std::string_view FileFilter =
    "Image files (*.gif;*.jpg;*.jpeg;*.png;*.bmp)|*.gif;*.jpg;*.jpeg;*.png;*.bmp";

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

PropertySheet::PropertySheet(const SheetTable& table, Ports& ports, ProgramState& state,
                             frmLiveExamples& viewer)
    : Form(table.name, ""),
      table_(table),
      ports_(ports),
      state_(state),
      viewer_(viewer),
      fonts_(fontList(ports.fonts)),
      cells_(table.rows.size()) {
  lblTitle.text = table.title;
  lstSortedList.list.assign(fonts_.DisplayTexts.begin(), fonts_.DisplayTexts.end());
  std::ranges::sort(lstSortedList.list, {}, [](const auto& text) { return lowered(text); });
  prepareRows();
  bind();
  hideEditors();
}

void PropertySheet::prepareRows() {
  choices_.reserve(table_.rows.size());  // rules_ points into it
  for (const PropertyRow* row : table_.rows) {
    const auto& editor = row->editor;
    const ChoiceList& choices = choices_.emplace_back(choiceList(editor.choices));
    const PropertyValue blank =
        editor.Kind == KindNumber ? PropertyValue(0.F) : SharedText(editor.BlankValue);
    rules_.push_back({row, blank, editor.BlankText, editor.Kind == KindSortedList ? &fonts_ : &choices});
  }
}

void PropertySheet::bind() {
  btnCombo.event = [this] { btnCombo_Click(); };
  btnFile.event = [this] { btnFile_Click(); };
  btnColour.event = [this] { btnColour_Click(); };
  btnFontSize.event = [this] { btnFontSize_Click(); };
  btnReplicate.event = [this] { btnReplicate_Click(); };
  lblExamplesLink.event = [this] { lblExamplesLink_Click(); };
  lblMoreHelpLink.event = [this] { lblMoreHelpLink_Click(); };
  lstList.event = [this] { chooseFromList(lstList.text); };
  lstSortedList.event = [this] { chooseFromList(lstSortedList.text); };
}

const CellRules& PropertySheet::rowAt(int PropertyOrdinal) const {
  return rules_.at(static_cast<std::size_t>(PropertyOrdinal));
}

const PropertySheet::Cell& PropertySheet::cell(int PropertyOrdinal, int col) const {
  return cells_.at(static_cast<std::size_t>(PropertyOrdinal))[slotOf(col)];
}

PropertySheet::Cell& PropertySheet::cell(int PropertyOrdinal, int col) {
  return cells_.at(static_cast<std::size_t>(PropertyOrdinal))[slotOf(col)];
}

void PropertySheet::SetProperty(int PropertyOrdinal, int col, PropertyValue Value) {
  auto& one = cell(PropertyOrdinal, col);
  one.value = std::move(Value);
  one.original.reset();
}

const PropertyValue& PropertySheet::GetProperty(int PropertyOrdinal, int col) const {
  return cell(PropertyOrdinal, col).value;
}

const PropertyValue& PropertySheet::ValueToStore(int PropertyOrdinal, int col) const {
  const auto& one = cell(PropertyOrdinal, col);
  return one.original ? *one.original : one.value;
}

void PropertySheet::RefreshPropertyValues() {
  ++fillings_;
  for (std::size_t i = 0; i < cells_.size(); ++i) {
    const CellRules& rules = rules_[i];
    for (std::size_t slot = 0; slot < columns(); ++slot) {
      if (!rules.row->takes(valueColumns[slot])) continue;
      Cell& one = cells_[i][slot];
      const PropertyValue given = one.value;
      one.text = FormatCellText(rules, one.value);
      if (!sameValue(given, one.value)) one.original = given;
    }
  }
}

Swatch PropertySheet::swatch(int PropertyOrdinal, int col) const {
  if (editing_ && pickedColour_ && PropertyOrdinal == cursorRow_ && slotOf(col) == slotOf(cursorColumn_)) {
    return pickedColour_;
  }
  const auto* value = std::get_if<SharedText>(&GetProperty(PropertyOrdinal, col));
  return value == nullptr ? Swatch() : swatchOf(*value);
}

void PropertySheet::EnterCell(int PropertyOrdinal, int col) {
  if (editing_ || PropertyOrdinal < 0 || PropertyOrdinal >= RowCount()) return;
  cursorRow_ = PropertyOrdinal;
  if (row(cursorRow_).Kind() == KindGroup) ++cursorRow_;
  const PropertyRow& entered = row(cursorRow_);
  cursorColumn_ = table_.hasStates ? valueColumns[slotOf(col)] : column::Normal;
  if (entered.OnlyColumn != 0) cursorColumn_ = entered.OnlyColumn;
  editing_ = true;
  pickedColour_.reset();
  txtEntry.text = Shown(cursorRow_, cursorColumn_).view();
  helpContextID_ = entered.HelpTopic;
  if (isListRow()) fillList();
  showEditors();
  showHelp();
}

void PropertySheet::SetStandard(int PropertyOrdinal, int col, PropertyValue Value) {
  cell(PropertyOrdinal, col).standard = std::move(Value);
}

const std::optional<PropertyValue>& PropertySheet::Standard(int PropertyOrdinal, int col) const {
  return cell(PropertyOrdinal, col).standard;
}

bool PropertySheet::IsChanged(int PropertyOrdinal, int col) const {
  const auto& standard = Standard(PropertyOrdinal, col);
  return standard && !sameValue(*standard, ValueToStore(PropertyOrdinal, col));
}

void PropertySheet::SetCursor(int PropertyOrdinal, int col) {
  if (editing_ || PropertyOrdinal < 0 || PropertyOrdinal >= RowCount()) return;
  cursorRow_ = PropertyOrdinal;
  cursorColumn_ = col;
}

void PropertySheet::ShowCell(int PropertyOrdinal, int col) {
  SetCursor(PropertyOrdinal, col);
  ++shownCells_;
}

void PropertySheet::LeaveCell() {
  if (!editing_) return;
  editing_ = false;
  hideEditors();
  const int ordinal = cursorRow_;
  Cell& left = cell(ordinal, cursorColumn_);
  const PropertyValue old = left.value;
  std::string typed = txtEntry.text;  // a line end would end the value in a menu file
  std::ranges::replace_if(
      typed, [](char c) { return c == '\r' || c == '\n'; }, ' ');
  left.value = ParseCellText(rowAt(ordinal), typed, old);
  left.text = FormatCellText(rowAt(ordinal), left.value);
  if (sameValue(left.value, old)) return;
  left.original.reset();
  if (Change) Change(ordinal);
}

void PropertySheet::TakeBack() {
  if (!editing_) return;
  editing_ = false;
  hideEditors();
}

bool PropertySheet::isListRow() const { return edits(KindList) || edits(KindSortedList); }

void PropertySheet::type(std::string_view text) {
  if (!editing_) return;
  if (isListRow() && std::ranges::find(openRow().choices->DisplayTexts, text, &SharedText::view) ==
                         openRow().choices->DisplayTexts.end()) {
    return;
  }
  txtEntry.text = text;
}

void PropertySheet::chooseFromList(std::string_view text) {
  if (!isListRow()) return;
  type(text);
  list().visible = false;
}

bool PropertySheet::entryIsReadOnly() const { return isListRow() || edits(KindFontSize); }

void PropertySheet::fillList() {
  Control& box = list();
  const auto& texts = openRow().choices->DisplayTexts;
  // The fonts are sorted once, by the constructor.
  if (&box == &lstList) box.list.assign(texts.begin(), texts.end());
  box.selected.clear();
  box.text.clear();
}

void PropertySheet::showEditors() {
  const auto kind = openRow().row->Kind();
  txtEntry.visible = true;
  btnFile.visible = kind == KindFile;
  btnColour.visible = kind == KindColour;
  btnFontSize.visible = kind == KindFontSize;
  btnCombo.visible = isListRow();
  btnReplicate.visible = table_.hasStates && openRow().row->OnlyColumn == 0;
}

void PropertySheet::hideEditors() {
  for (Control* control : {&txtEntry, &btnFile, &btnColour, &btnFontSize, &btnCombo, &btnReplicate, &lstList,
                           &lstSortedList, &lblExamplesLink, &lblMoreHelpLink}) {
    control->visible = false;
  }
  HelpLabel1.text.clear();
  HelpLabel2.text.clear();
}

void PropertySheet::showHelp() {
  const PropertyRow& open = *openRow().row;
  HelpLabel1.text = open.Caption;
  HelpLabel2.text = open.helpText(cursorColumn_);
  lblExamplesLink.visible = !open.example.empty();
  lblMoreHelpLink.visible = true;
}

void PropertySheet::Grid_Scroll(bool cellInSight) {
  if (!editing_) return;
  if (cellInSight) {
    showEditors();
  } else {
    for (Control* control : {&txtEntry, &btnFile, &btnColour, &btnFontSize, &btnCombo, &btnReplicate}) {
      control->visible = false;
    }
  }
  lstList.visible = false;
  lstSortedList.visible = false;
}

void PropertySheet::txtEntry_Click() {
  if (isListRow()) btnCombo_Click();
}

void PropertySheet::btnCombo_Click() {
  if (!isListRow()) return;
  list().selected.clear();  // so that the same entry can be chosen again
  list().text.clear();
  list().visible = !list().visible;
}

/// Opens the cell again if it was left while a chooser was open, as when the end of the session was cancelled.
void PropertySheet::enter(Place open, std::string_view text) {
  EnterCell(open.row, open.column);
  txtEntry.text = text;
}

void PropertySheet::btnFile_Click() {
  if (!edits(KindFile)) return;
  const Place open = place();
  const auto path = ports_.asker.chooseFile({.kind = FileDialog::Open,
                                             .title = "Choose Image File",
                                             .filter = std::string(FileFilter),
                                             .folder = state_.FilePath,
                                             .name = {}});
  if (path) enter(open, *path);
}

void PropertySheet::btnColour_Click() {
  if (!edits(KindColour)) return;
  const Place open = place();
  constexpr Rgb white{0xFF, 0xFF, 0xFF};
  const auto colour = ports_.asker.chooseColour(swatchOf(txtEntry.text).value_or(white).number());
  if (!colour) return;
  enter(open, colourText(*colour));
  pickedColour_ = swatchOf(txtEntry.text);
}

void PropertySheet::btnFontSize_Click() {
  if (!edits(KindFontSize)) return;
  const Place open = place();
  state_.tmpFontSize = trimmed(txtEntry.text);
  frmFontSize form(state_.tmpFontSize);
  form.Form_Activate();
  ports_.asker.ShowModal(form);
  enter(open, state_.tmpFontSize);
}

/// Always copies the value of "Normal", whichever state was open.
void PropertySheet::btnReplicate_Click() {
  const int ordinal = cursorRow_;
  if (!table_.hasStates || row(ordinal).OnlyColumn != 0) return;
  LeaveCell();
  for (const int col : {column::MouseOver, column::MouseClick}) {
    auto standard = std::move(cell(ordinal, col).standard);
    cell(ordinal, col) = cell(ordinal, column::Normal);
    cell(ordinal, col).standard = std::move(standard);
  }
  if (Change) Change(ordinal);
  EnterCell(ordinal, column::Normal);
}

void PropertySheet::lblExamplesLink_Click() {
  viewer_.ShowExample(row(cursorRow_).ExampleFile(), row(cursorRow_).Caption);
}

void PropertySheet::lblMoreHelpLink_Click() { ports_.help.openTopic(row(cursorRow_).HelpTopic); }

}  // namespace nimbrel
