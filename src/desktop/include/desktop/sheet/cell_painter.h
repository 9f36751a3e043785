#pragma once

#include <QFont>
#include <QHeaderView>
#include <QStyledItemDelegate>

#include "desktop/sheet/sheet_model.h"

namespace nimbrel {

/// Draws the cells of a property sheet. What is fixed in colour stays so in a light palette; a dark one has its
/// own shades instead.
class CellPainter : public QStyledItemDelegate {
  Q_OBJECT

 public:
  explicit CellPainter(const SheetModel& model, QObject* parent = nullptr);

  /// Pixels between a cell's left edge and its text, which begins where that of the entry will.
  static constexpr int inset = 5;
  /// That of a row's caption.
  static QFont captionFont(const PropertyRow& row, QFont font);

  void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
  /// A text that is cut off is told in full as tool tip.
  bool helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                 const QModelIndex& index) override;

 private:
  void paintText(QPainter& painter, const QStyleOptionViewItem& option, const QModelIndex& index,
                 const QColor& ink) const;
  struct Colours;
  Colours coloursOf(const QStyleOptionViewItem& option, const QModelIndex& index) const;
  QRect textPlace(const QRect& cell, const QModelIndex& index) const;
  bool isColour(const QModelIndex& index) const;

  const SheetModel& model_;
};

/// The states above an item's sheet; that of the open cell is marked.
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
