#pragma once

#include <QAbstractTableModel>
#include <array>
#include <vector>

#include "properties/property_sheet.h"

namespace nimbrel {

/// A property sheet as Qt's views take it: a row a property, in the columns of `column`. A sheet with states has
/// them as its heading.
class SheetModel : public QAbstractTableModel {
  Q_OBJECT

 public:
  /// `sheet` outlives the model.
  explicit SheetModel(const PropertySheet& sheet, QObject* parent = nullptr);

  /// Tells the views which cells look other than they did at the last call.
  void sync();

  const PropertySheet& sheet() const { return sheet_; }
  bool isOpen(int row, int col) const;
  /// What names a cell to those who do not see where it stands.
  QString nameOf(int row, int col) const;

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  /// The cell that is open is blank: its text stands in the entry above it.
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
  Qt::ItemFlags flags(const QModelIndex& index) const override;

 private:
  struct Sight {
    SharedText text;
    Swatch swatch;
    bool isOpen = false;

    bool operator==(const Sight&) const = default;
  };

  Sight sightOf(int row, int col) const;
  QString text(int row, int col) const;
  QString displayText(int row, std::string_view text) const;
  QString caption(int row) const;

  const PropertySheet& sheet_;
  std::vector<std::array<Sight, valueColumns.size()>> seen_;
  int seenOpenRow_ = -1;
  int seenOpenColumn_ = -1;
  QString indent_;  ///< of the captions below a heading
};

}  // namespace nimbrel
