#pragma once

#include <QFrame>
#include <QListWidget>
#include <string>
#include <vector>

namespace nimbrel {

/// The drop-down list of a cell.
class ListPopup : public QFrame {
  Q_OBJECT

 public:
  explicit ListPopup(QWidget* parent);

  void fill(const std::vector<std::string>& texts);
  /// The accessible name.
  void setName(const QString& name) { list_.setAccessibleName(name); }
  /// Makes the entry with this text the current one. If there is none, no entry is current.
  void setCurrentText(const QString& text);
  /// Adds `typed` to the search text and returns the next entry that starts with it, or -1.
  int search(const QString& typed);

  /// Opens the list under `cell`, which is in screen coordinates, or above it if there is more room. It is at least as wide
  /// as its entries. A click on the cell closes the list, as any click outside of it does, and is not passed on.
  void open(const QRect& cell);

 signals:
  void chosen(int entry);
  /// Chosen with the Tab key, which then goes to the next cell, or with Shift to the previous one.
  void chosenByTab(int entry, bool forward);
  /// Emitted whether an entry was chosen or not.
  void closed();
  void helpRequested();

 protected:
  void mousePressEvent(QMouseEvent* event) override;
  void hideEvent(QHideEvent* event) override;
  bool focusNextPrevChild(bool next) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  int entryHeight() const;
  bool handleKey(int key);
  bool acceptCurrent(int key);

  QListWidget list_;
  std::vector<std::string> texts_;
  int widest_ = 0;  ///< pixels, of an entry with its margins
  QRect cell_;
};

}  // namespace nimbrel
