#pragma once

#include <QHBoxLayout>
#include <QIcon>
#include <QToolButton>
#include <functional>
#include <vector>

#include "desktop/run_action.h"
#include "desktop/sheet/entry_edit.h"
#include "desktop/sheet/list_popup.h"
#include "forms/property_sheet.h"

namespace nimbrel {

/// Returns an icon by its name, in the colours of the current palette.
using IconSource = std::function<QIcon(const char* name)>;

/// The editor over the open cell: the entry and the small button of the row, with the list that drops down from it. It shows
/// the controls of the sheet. A sheet has one that serves each open cell in turn: a chooser that its button opened runs in
/// an event loop of its own, so the editor has to outlive the cell.
class OpenCellEditor : public QWidget {
  Q_OBJECT

 public:
  /// `run` runs the user's actions on the sheet.
  OpenCellEditor(PropertySheet& sheet, IconSource icons, ActionRunner run, QWidget* parent);

  /// Pixels between the edge of the editor and the text in it.
  static constexpr int inset = 5;

  /// Updates the entry from the sheet. `name` is the accessible name of the cell.
  void showEntry(const QString& name);
  /// Updates the entry, the buttons and the list from the sheet.
  void refresh(const QString& name);
  /// Another cell has been opened: clears the undo history of the entry.
  void begin();

  EntryEdit& entry() { return entry_; }
  ListPopup& list() { return list_; }
  /// The button beside the entries of the states, which is an editor by itself.
  QToolButton& replicate() const { return *buttons_.front().widget; }
  /// Clicks the button of the open cell, if it has one.
  void pressButton();
  /// Gives the focus to the entry and selects all of its text.
  void focusEntry();

 protected:
  void resizeEvent(QResizeEvent* event) override;
  void changeEvent(QEvent* event) override;

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
  void showList();
  void choose(int entry);
  void search(const QString& typed);

  PropertySheet& sheet_;
  IconSource icons_;
  ActionRunner run_;
  EntryEdit entry_;
  QWidget swatch_;  ///< leaves the swatch of the cell in sight
  ListPopup list_;
  std::vector<Button> buttons_;
};

}  // namespace nimbrel
