#include "desktop/sheet/sheet_model.h"

#include <QFont>
#include <algorithm>

#include "desktop/display_text.h"

namespace nimbrel {
namespace {

QString stateName(int col) { return toDisplay(stateNames[slotOf(col)]); }

}  // namespace

SheetModel::SheetModel(const PropertySheet& sheet, QObject* parent)
    : QAbstractTableModel(parent), sheet_(sheet), appearances_(static_cast<std::size_t>(sheet.RowCount())) {
  const bool hasHeadings = std::ranges::any_of(
      sheet.table().rows, [](const PropertyRow* row) { return row->Kind() == KindGroup; });
  if (hasHeadings) indent_ = "  ";
}

bool SheetModel::isOpen(int row, int col) const {
  return sheet_.Editing() && sheet_.cursorRow() == row && sheet_.cursorColumn() == col;
}

bool SheetModel::isChanged(int row, int col) const {
  return col != column::Caption && col != column::Replicate && sheet_.row(row).takes(col) &&
         sheet_.IsChanged(row, col);
}

SheetModel::Appearance SheetModel::appearanceOf(int row, int col) const {
  Appearance appearance{sheet_.Shown(row, col), {}, isOpen(row, col), isChanged(row, col)};
  if (sheet_.row(row).Kind() == KindColour) appearance.swatch = sheet_.swatch(row, col);
  return appearance;
}

void SheetModel::sync() {
  for (int row = 0; row < sheet_.RowCount(); ++row) {
    for (const int col : valueColumns) {
      if (col >= columnCount() || !sheet_.row(row).takes(col)) continue;
      auto& last = appearances_[static_cast<std::size_t>(row)][slotOf(col)];
      auto now = appearanceOf(row, col);
      if (now == last) continue;
      last = std::move(now);
      emit dataChanged(index(row, col), index(row, col));
    }
  }
  const int openRow = sheet_.Editing() ? sheet_.cursorRow() : -1;
  const int openColumn = sheet_.Editing() ? sheet_.cursorColumn() : -1;
  for (const int row : {std::exchange(lastOpenRow_, openRow), openRow}) {
    if (row >= 0) emit dataChanged(index(row, column::Caption), index(row, column::Caption));
  }
  if (std::exchange(lastOpenColumn_, openColumn) != openColumn) {
    emit headerDataChanged(Qt::Horizontal, 0, columnCount() - 1);
  }
}

int SheetModel::rowCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : sheet_.RowCount(); }

int SheetModel::columnCount(const QModelIndex& parent) const {
  if (parent.isValid()) return 0;
  return (sheet_.table().hasStates ? column::MouseClick : column::Normal) + 1;
}

QString SheetModel::displayText(int row, std::string_view text) const {
  return sheet_.row(row).Kind() == KindFile ? toDisplayPath(text) : toDisplay(text);
}

QString SheetModel::text(int row, int col) const {
  if (col == column::Replicate || !sheet_.row(row).takes(col)) return {};
  return displayText(row, sheet_.Shown(row, col));
}

QString SheetModel::caption(int row) const {
  const auto& entry = sheet_.row(row);
  return (entry.Kind() == KindGroup ? QString() : indent_) + toDisplay(entry.Caption);
}

QString SheetModel::nameOf(int row, int col) const {
  const auto name = toDisplay(sheet_.row(row).Caption);
  return sheet_.table().hasStates ? name + ", " + stateName(col) : name;
}

QVariant SheetModel::data(const QModelIndex& index, int role) const {
  const int row = index.row();
  const int col = index.column();
  if (role == Qt::AccessibleDescriptionRole && index.isValid() && isChanged(row, col))
    return "not the default";
  if (!index.isValid() || (role != Qt::DisplayRole && role != Qt::AccessibleTextRole)) return {};
  if (col == column::Caption) return role == Qt::DisplayRole ? caption(row) : caption(row).trimmed();
  if (role == Qt::DisplayRole) return isOpen(row, col) ? QString() : text(row, col);
  if (col == column::Replicate || !sheet_.row(row).takes(col)) return {};
  return nameOf(row, col) + ": " +
         (isOpen(row, col) ? displayText(row, sheet_.txtEntry.text) : text(row, col));
}

QVariant SheetModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal) return {};
  const bool isCaption = section == column::Caption;
  if (role == Qt::TextAlignmentRole) {
    return static_cast<int>(isCaption ? Qt::AlignRight | Qt::AlignVCenter : Qt::AlignCenter);
  }
  if (role == Qt::FontRole) {
    QFont font;
    font.setBold(true);
    return font;
  }
  if (role != Qt::DisplayRole || section == column::Replicate) return {};
  return isCaption ? "Item State:" : stateName(section);
}

Qt::ItemFlags SheetModel::flags(const QModelIndex& index) const {
  const int col = index.column();
  if (col == column::Caption) return Qt::ItemIsEnabled;
  if (!index.isValid() || col == column::Replicate || !sheet_.row(index.row()).takes(col)) {
    return Qt::NoItemFlags;
  }
  return Qt::ItemIsEnabled | Qt::ItemIsSelectable;
}

}  // namespace nimbrel
