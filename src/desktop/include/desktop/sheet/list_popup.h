#pragma once

#include <QFrame>
#include <QListWidget>
#include <string>
#include <vector>

namespace nimbrel {

/// The entries of a list row, dropped down over all windows.
class ListPopup : public QFrame {
  Q_OBJECT

 public:
  explicit ListPopup(QWidget* parent);

  void fill(const std::vector<std::string>& texts);
  /// What those who do not see it are told.
  void setName(const QString& name) { list_.setAccessibleName(name); }
  /// Marks the entry of this text, or none.
  void mark(const QString& text);
  /// The entry that begins with what was typed lately, from the marked one on; -1 if there is none.
  int search(const QString& typed);

  /// Drops the list down at a place on the screen, which is moved as far as the screen's edges want it, with its
  /// entries `inner.height` high and wide enough for them. A click on `opener`, which closes the list as any
  /// other outside of it does, does nothing else.
  void open(const QRect& inner, const QRect& opener);

 signals:
  void chosen(int entry);
  /// Chosen by the tabulator, which goes on to the next cell or the one before.
  void movedOn(int entry, bool forward);
  /// Gone, with an entry chosen or not.
  void closed();
  void helpWanted();

 protected:
  void mousePressEvent(QMouseEvent* event) override;
  void hideEvent(QHideEvent* event) override;
  bool focusNextPrevChild(bool next) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  bool press(int key);
  bool take(int key);

  QListWidget list_;
  std::vector<std::string> texts_;
  int widest_ = 0;  ///< pixels, of an entry with its margins
  QRect opener_;
};

}  // namespace nimbrel
