#pragma once

#include <QIcon>
#include <QToolButton>
#include <functional>
#include <vector>

#include "desktop/run_action.h"
#include "desktop/sheet/entry_edit.h"
#include "desktop/sheet/list_popup.h"
#include "properties/property_sheet.h"
#include "properties/sheet_geometry.h"

namespace nimbrel {

/// A drawing by its name, in the ink of the palette of now.
using IconSource = std::function<QIcon(const char* name)>;

/// The widgets over the open cell: the entry, the small buttons and the list. They show the controls of the sheet.
class CellEditors {
 public:
  /// `cells` is the grid's viewport, which clips the editors. `run` runs the user's actions on the sheet.
  CellEditors(PropertySheet& sheet, QWidget& cells, IconSource icons, ActionRunner run);

  /// Texts and visibility, then the list, which drops down at `listPlace` on the screen.
  void refresh(const QString& name, const QRect& listPlace);
  /// Places within `cells`.
  void place(const QRect& entry, const QRect& button, const QRect& replicate);
  /// Another cell is open than before: nothing of what was typed there is left to be taken back.
  void begin();
  void setIconSize(int side);
  /// The palette has changed; each is drawn again when it is needed.
  void forgetIcons();

  EntryEdit& entry() { return entry_; }
  ListPopup& list() { return list_; }
  /// Presses the button of the open cell's kind, if it has one.
  void pressButton();
  /// A clicked button has its cell typed into again; all of the text is selected.
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
