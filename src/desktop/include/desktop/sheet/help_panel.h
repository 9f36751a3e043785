#pragma once

#include <QLabel>
#include <QWidget>

#include "desktop/run_action.h"
#include "properties/property_sheet.h"
#include "properties/sheet_geometry.h"

namespace nimbrel {

/// A label that does something. One press of the tabulator reaches it, Enter or the space bar follows it.
class LinkLabel : public QLabel {
  Q_OBJECT

 public:
  explicit LinkLabel(QWidget* parent);

  void setLink(const QString& text);

 signals:
  void followed();

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
};

/// What the sheet says of the open cell's property, and the links to more.
class HelpPanel : public QWidget {
  Q_OBJECT

 public:
  /// `run` runs what a link does.
  HelpPanel(PropertySheet& sheet, ActionRunner run, QWidget* parent);

  void refresh();
  void layOut(const SheetLayout& layout);
  /// Hands the focus to the first link. False: none is there.
  bool focusLinks();

 protected:
  void changeEvent(QEvent* event) override;

 private:
  void prepareLink(LinkLabel& link, Control& control);
  static void showLink(LinkLabel& link, const Control& control);
  void placeCaption();

  PropertySheet& sheet_;
  ActionRunner run_;
  QLabel caption_, text_;
  LinkLabel moreHelp_, example_;
};

}  // namespace nimbrel
