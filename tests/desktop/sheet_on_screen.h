#pragma once

#include <QApplication>
#include <QTest>
#include <QWheelEvent>
#include <gtest/gtest.h>

#include "desktop/sheet/sheet_view.h"
#include "model/element.h"
#include "properties/element_values.h"
#include "support/scripted_ports.h"

namespace nimbrel {

/// Chooses red.
struct PaintingAuthor : ScriptedAsker {
  std::optional<std::uint32_t> chooseColour(std::uint32_t) override { return 0x0000FFU; }
};

/// Creates the application, once in a process.
inline void startWithoutScreen() {
  if (QCoreApplication::instance() != nullptr) return;
  qputenv("QT_QPA_PLATFORM", "offscreen");
  static int count = 1;
  static char name[] = "test";
  static char* arguments[] = {name, nullptr};
  static const auto* const application = new QApplication(count, arguments);
  static_cast<void>(application);
}

/// The sheet of a new element, in a window that is too low for all of its rows.
template <class Element>
class SheetOnScreen : public testing::Test {
 protected:
  static void SetUpTestSuite() { startWithoutScreen(); }

  explicit SheetOnScreen(const SheetTable& table)
      : sheet(table, ports, state, viewer), view(sheet, [this](const char*) {
          if (drawIcon) drawIcon();
          return QIcon();
        }) {
    SetDefaultValues(element);
    PutValuesToPropertyControl(element, sheet);
    sheet.Change = [this](int ordinal) { changes.push_back(ordinal); };
    view.resize(640, 420);
    view.show();
    view.activateWindow();
    view.refresh();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&view));
  }

  template <class Widget = QWidget>
  Widget& find(const char* name) {
    return *view.template findChild<Widget*>(name);
  }
  SheetGrid& grid() { return find<SheetGrid>("Grid"); }
  QLineEdit& entry() { return find<QLineEdit>("txtEntry"); }
  QListWidget& entries() { return find<QListWidget>("entries"); }

  void click(int row, int col) {
    grid().goTo({row, col});
    QTest::mouseClick(grid().viewport(), Qt::LeftButton, {}, grid().placeOf({row, col}).center());
  }
  void clickButton(const char* name) { QTest::mouseClick(&find(name), Qt::LeftButton); }
  void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
    QTest::keyClick(QApplication::focusWidget(), key, modifiers);
  }
  /// Presses keys and expects a certain cell to be open after each.
  void pressAndExpect(std::initializer_list<std::pair<Qt::Key, CellPlace>> moves) {
    for (const auto& [key, place] : moves) {
      press(key);
      EXPECT_TRUE(isOpen(place.row, place.column)) << place.row << ", " << place.column;
    }
  }
  /// The first key may open the entry, which gets the others.
  void type(std::string_view text) {
    for (const char key : text) QTest::keyClick(QApplication::focusWidget(), key);
  }
  void turnWheel(int lines) {
    const QPointF centre = grid().viewport()->rect().center();
    constexpr int line = 40;
    QWheelEvent event(centre, grid().viewport()->mapToGlobal(centre), {}, {0, -line * lines}, {}, {},
                      Qt::NoScrollPhase, false);
    QApplication::sendEvent(grid().viewport(), &event);
  }
  bool isOpen(int row, int col) const {
    return sheet.Editing() && CellPlace{sheet.cursorRow(), sheet.cursorColumn()} == CellPlace{row, col};
  }
  QString displayed(int row, int col, int role = Qt::DisplayRole) {
    return grid().model()->index(row, col).data(role).toString();
  }

  ScriptedPorts system;
  PaintingAuthor author;
  Ports ports{system.files,
              author,
              system.settings,
              system,
              system,
              system,
              {"Arial", "Zapf Chancery Medium Italic"},
              [] { return 0.0; }};
  ProgramState state;
  frmLiveExamples viewer{state};
  Element element;
  PropertySheet sheet;
  std::function<void()> drawIcon;
  SheetView view;
  std::vector<int> changes;
};

}  // namespace nimbrel
