#pragma once

#include <QFont>
#include <QHeaderView>
#include <QStyledItemDelegate>

#include "desktop/sheet/sheet_model.h"

namespace nimbrel {

/// Paints the cells of a property sheet. The fixed colours are for light palettes; dark ones get other shades.
class CellPainter : public QStyledItemDelegate {
  Q_OBJECT

 public:
  explicit CellPainter(const SheetModel& model, QObject* parent = nullptr);

  /// Wide enough for the whole text.
  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
  void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
  /// Shows a text that is cut off as a tool tip.
  bool helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                 const QModelIndex& index) override;

  const SheetModel& sheetModel() const { return model_; }

 private:
  QFont fontOf(const QStyleOptionViewItem& option, const QModelIndex& index) const;
  void paintText(QPainter& painter, const QStyleOptionViewItem& option, const QModelIndex& index,
                 const QColor& ink) const;
  struct Colours;
  Colours coloursOf(const QStyleOptionViewItem& option, const QModelIndex& index) const;
  QRect textPlace(const QStyleOptionViewItem& option, const QModelIndex& index) const;
  bool isColour(const QModelIndex& index) const;

  const SheetModel& model_;
};

/// The header of an item's sheet, with the states. The state of the open cell is highlighted.
class StateHeader : public QHeaderView {
  Q_OBJECT

 public:
  explicit StateHeader(const PropertySheet& sheet, QWidget* parent = nullptr);

 protected:
  void initStyleOptionForIndex(QStyleOptionHeader* option, int logicalIndex) const override;
  void paintSection(QPainter* painter, const QRect& place, int logicalIndex) const override;

 private:
  const PropertySheet& sheet_;
};

}  // namespace nimbrel
