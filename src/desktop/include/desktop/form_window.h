#pragma once

#include <QDialog>
#include <memory>
#include <vector>

#include "desktop/control_binding.h"
#include "desktop/run_action.h"
#include "forms/form.h"

namespace nimbrel {

/// The window of a form. Its layout comes from the `.ui` file named after the form, and each widget is bound to the
/// control of the same name. It decides nothing itself.
class FormWindow : public QDialog {
  Q_OBJECT

 public:
  /// Throws `std::logic_error` if layout and form do not match.
  explicit FormWindow(Form& form, QWidget* parent = nullptr);

  /// Updates the window from the form. Hides it if the form is no longer open; the owner is the one that shows it.
  void refresh();
  Form& form() { return form_; }

 signals:
  /// The form has run an action of the user, and the window has been refreshed.
  void actionFinished();
  /// The user has pressed F1.
  void helpRequested();

 protected:
  void closeEvent(QCloseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void reject() override;

 private:
  bool isEnterForContent(int key) const;
  void growToText();
  void bind();
  void runAction(const Action& action);
  void focus();

  Form& form_;
  std::vector<std::unique_ptr<ControlBinding>> bindings_;
};

}  // namespace nimbrel
