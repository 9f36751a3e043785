#pragma once

#include <QIcon>
#include <QToolButton>
#include <functional>
#include <vector>

#include "desktop/run_action.h"
#include "desktop/sheet/entry_edit.h"
#include "desktop/sheet/list_popup.h"
#include "forms/property_sheet.h"
#include "properties/sheet_geometry.h"

namespace nimbrel {

/// Returns an icon by its name, in the colours of the current palette.
using IconSource = std::function<QIcon(const char* name)>;

/// The widgets over the open cell: the entry, the small buttons and the list. They show the controls of the sheet.
class CellEditors {
 public:
  /// `cells` is the grid's viewport, which clips the editors. `run` runs the user's actions on the sheet.
  CellEditors(PropertySheet& sheet, QWidget& cells, IconSource icons, ActionRunner run);

  /// Updates the widgets from the sheet. If the list is open, it drops down at `listPlace` on the screen.
  void refresh(const QString& name, const QRect& listPlace);
  /// The places are relative to `cells`.
  void place(const QRect& entry, const QRect& button, const QRect& replicate);
  /// Another cell has been opened: clears the undo history of the entry.
  void begin();
  void setIconSize(int side);
  /// After a change of the palette. Each icon is drawn again when it is needed.
  void forgetIcons();

  EntryEdit& entry() { return entry_; }
  ListPopup& list() { return list_; }
  /// Clicks the button of the open cell, if it has one.
  void pressButton();
  /// Gives the focus to the entry and selects all of its text.
  void focusEntry();

 private:
  struct Button {
    Control& control;
    const char* icon;
    QToolButton* widget;
    bool isDrawn = false;
  };

  void addButton(Control& control, const char* icon, const QString& toolTip, const QString& name);
  void connectAll();
  bool isPath() const;
  Control* openList() const;
  QString textOfCell() const;
  void showText();
  void showButtons();
  void showList(const QRect& listPlace);
  void choose(int entry);
  void search(const QString& typed);

  PropertySheet& sheet_;
  QWidget& cells_;
  IconSource icons_;
  ActionRunner run_;
  EntryEdit entry_;
  ListPopup list_;
  std::vector<Button> buttons_;
};

}  // namespace nimbrel
