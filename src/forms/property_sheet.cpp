#include "forms/property_sheet.h"

#include <algorithm>

#include "forms/font_size_form.h"
#include "text/ascii.h"

namespace nimbrel {
namespace {

/// Formats that browsers show and a compile can measure.
constexpr std::string_view FileFilter =
    "Image files (*.gif;*.jpg;*.jpeg;*.png;*.bmp)|*.gif;*.jpg;*.jpeg;*.png;*.bmp";

}  // namespace

PropertySheet::PropertySheet(const SheetTable& table, const SheetPorts& ports, frmLiveExamples& viewer)
    : Form(table.name, ""), SheetValues(table, ports.fonts), ports_(ports), viewer_(viewer) {
  lblTitle.text = table.title;
  lstSortedList.list = sortedFonts();
  bind();
  hideEditors();
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

Swatch PropertySheet::swatch(int PropertyOrdinal, int col) const {
  if (editing_ && pickedColour_ && PropertyOrdinal == cursorRow_ && slotOf(col) == slotOf(cursorColumn_)) {
    return pickedColour_;
  }
  const auto* value = std::get_if<SharedText>(&GetProperty(PropertyOrdinal, col));
  return value == nullptr || HasSeveralValues(PropertyOrdinal, col) ? Swatch() : swatchOf(*value);
}

void PropertySheet::EnterCell(int PropertyOrdinal, int col) {
  if (editing_ || PropertyOrdinal < 0 || PropertyOrdinal >= RowCount()) return;
  cursorRow_ = PropertyOrdinal;
  if (row(cursorRow_).Kind() == KindGroup) ++cursorRow_;
  const PropertyRow& entered = row(cursorRow_);
  cursorColumn_ = table().hasStates ? valueColumns[slotOf(col)] : column::Normal;
  if (entered.OnlyColumn != 0) cursorColumn_ = entered.OnlyColumn;
  editing_ = true;
  pickedColour_.reset();
  txtEntry.text = Shown(cursorRow_, cursorColumn_).view();
  helpContextID_ = entered.HelpTopic;
  if (isListRow()) fillList();
  showEditors();
  showHelp();
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
  if (enterText(ordinal, cursorColumn_, txtEntry.text) && Change) Change(ordinal);
}

void PropertySheet::TakeBack() {
  if (!editing_) return;
  editing_ = false;
  hideEditors();
}

bool PropertySheet::isListRow() const { return edits(KindList) || edits(KindSortedList); }

void PropertySheet::type(std::string_view text) {
  if (!editing_) return;
  if (isListRow()) {
    const auto& texts = choicesOf(cursorRow_);
    if (std::ranges::find(texts, text, &SharedText::view) == texts.end()) return;
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
  const auto& texts = choicesOf(cursorRow_);
  // The fonts are sorted once, by the constructor.
  if (&box == &lstList) box.list.assign(texts.begin(), texts.end());
  box.selected.clear();
  box.text.clear();
}

void PropertySheet::showEditors() {
  const auto kind = openRow().Kind();
  txtEntry.visible = true;
  btnFile.visible = kind == KindFile;
  btnColour.visible = kind == KindColour;
  btnFontSize.visible = kind == KindFontSize;
  btnCombo.visible = isListRow();
  btnReplicate.visible = table().hasStates && openRow().OnlyColumn == 0;
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
  const PropertyRow& open = openRow();
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
                                             .folder = ports_.menuFolder,
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
  ports_.tmpFontSize = trimmed(txtEntry.text);
  frmFontSize form(ports_.tmpFontSize);
  form.Form_Activate();
  ports_.asker.ShowModal(form);
  enter(open, ports_.tmpFontSize);
}

/// Always copies the value of "Normal", whichever state was open; several values cannot be copied.
void PropertySheet::btnReplicate_Click() {
  const int ordinal = cursorRow_;
  if (!table().hasStates || row(ordinal).OnlyColumn != 0) return;
  LeaveCell();
  if (HasSeveralValues(ordinal, column::Normal)) return;
  replicateNormal(ordinal);
  if (Change) Change(ordinal);
  EnterCell(ordinal, column::Normal);
}

void PropertySheet::lblExamplesLink_Click() {
  viewer_.ShowExample(row(cursorRow_).ExampleFile(), row(cursorRow_).Caption);
}

void PropertySheet::lblMoreHelpLink_Click() { ports_.help.openTopic(row(cursorRow_).HelpTopic); }

}  // namespace nimbrel
