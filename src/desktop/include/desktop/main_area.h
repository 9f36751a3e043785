#pragma once

#include <QStackedWidget>
#include <span>

#include "desktop/pane_splitter.h"

namespace nimbrel {

/// The tree and the sheets side by side, with a splitter between them.
class MainArea : public PaneSplitter {
  Q_OBJECT

 public:
  /// All sheets share one place. None is visible at first.
  MainArea(QWidget& tree, std::span<QWidget* const> sheets, QWidget* parent = nullptr);

  /// Shows a sheet in place of the last one, and moves the focus along if that had it.
  void showSheet(QWidget& sheet);

 private:
  QStackedWidget sheets_;
};

}  // namespace nimbrel
