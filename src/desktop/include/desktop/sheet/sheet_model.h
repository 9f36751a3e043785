#pragma once

#include <QAbstractTableModel>
#include <array>
#include <vector>

#include "forms/property_sheet.h"

namespace nimbrel {

/// A property sheet as a Qt model: one row per property, with the columns of `column`. If the sheet has states, the
/// header names them.
class SheetModel : public QAbstractTableModel {
  Q_OBJECT

 public:
  /// `sheet` outlives the model.
  explicit SheetModel(const PropertySheet& sheet, QObject* parent = nullptr);

  /// Emits `dataChanged` for the cells that have changed since the last call.
  void sync();

  const PropertySheet& sheet() const { return sheet_; }
  bool isOpen(int row, int col) const;
  /// Whether a cell has another value than the default.
  bool isChanged(int row, int col) const;
  /// The accessible name of a cell.
  QString nameOf(int row, int col) const;

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  /// The open cell has no text: the entry on top of it shows it.
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
  Qt::ItemFlags flags(const QModelIndex& index) const override;

 private:
  struct Appearance {
    SharedText text;
    Swatch swatch;
    bool isOpen = false;
    bool isChanged = false;

    bool operator==(const Appearance&) const = default;
  };

  Appearance appearanceOf(int row, int col) const;
  QString text(int row, int col) const;
  QString displayText(int row, std::string_view text) const;
  QString caption(int row) const;

  const PropertySheet& sheet_;
  std::vector<std::array<Appearance, valueColumns.size()>> appearances_;
  int lastOpenRow_ = -1;
  int lastOpenColumn_ = -1;
  QString indent_;  ///< of captions under a heading
};

}  // namespace nimbrel
