#include "desktop/sheet/cell_delegate.h"

namespace nimbrel {

QWidget* CellDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem&,
                                    const QModelIndex& index) const {
  if (index.column() != column::Replicate) return &editor_;
  editor_.replicate().setParent(parent);
  return &editor_.replicate();
}

/// The editor serves the next cell.
void CellDelegate::destroyEditor(QWidget*, const QModelIndex&) const {}

/// Without the buttons: no exception may pass through Qt, and their icons may throw one.
void CellDelegate::setEditorData(QWidget*, const QModelIndex& index) const {
  if (sheetModel().isOpen(index.row(), index.column())) {
    editor_.showEntry(sheetModel().nameOf(index.row(), index.column()));
  }
}

void CellDelegate::updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                                        const QModelIndex&) const {
  editor->setGeometry(option.rect);
}

/// A cell stays open while its help or a chooser has the focus, and its keys are the entry's.
bool CellDelegate::eventFilter(QObject*, QEvent*) { return false; }

}  // namespace nimbrel
