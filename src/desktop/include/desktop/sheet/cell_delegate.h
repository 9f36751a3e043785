#pragma once

#include "desktop/sheet/cell_painter.h"
#include "desktop/sheet/open_cell_editor.h"

namespace nimbrel {

/// Paints the cells, and puts the editor over the open one. Which cell is open, and what becomes of its text, the sheet
/// decides: the view opens the editor as a persistent one.
class CellDelegate : public CellPainter {
  Q_OBJECT

 public:
  /// `editor` is borrowed. It is a child of the viewport.
  CellDelegate(const SheetModel& model, OpenCellEditor& editor) : CellPainter(model), editor_(editor) {}

  QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                        const QModelIndex& index) const override;
  void destroyEditor(QWidget* editor, const QModelIndex& index) const override;
  void setEditorData(QWidget* editor, const QModelIndex& index) const override;
  void updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                            const QModelIndex& index) const override;

 protected:
  bool eventFilter(QObject* editor, QEvent* event) override;

 private:
  OpenCellEditor& editor_;
};

}  // namespace nimbrel
