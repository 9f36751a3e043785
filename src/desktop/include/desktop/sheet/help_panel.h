#pragma once

#include <QLabel>
#include <QWidget>

#include "desktop/run_action.h"
#include "forms/property_sheet.h"

namespace nimbrel {

/// A label with a single link, which is one tab stop. Enter and the space bar follow the link.
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

/// Describes the property of the open cell, with links to its help topic and its live example.
class HelpPanel : public QWidget {
  Q_OBJECT

 public:
  /// `run` runs what a link does.
  HelpPanel(PropertySheet& sheet, ActionRunner run, QWidget* parent);

  void refresh();
  /// Room for four lines.
  QSize sizeHint() const override;
  /// Gives the focus to the first link. Returns false if no link is visible.
  bool focusLinks();

 protected:
  void changeEvent(QEvent* event) override;

 private:
  void prepareLink(LinkLabel& link, Control& control);
  static void showLink(LinkLabel& link, const Control& control);
  void layOut();

  PropertySheet& sheet_;
  ActionRunner run_;
  QLabel caption_, text_;
  LinkLabel moreHelp_, example_;
};

}  // namespace nimbrel
