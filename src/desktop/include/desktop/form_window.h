#pragma once

#include <QDialog>
#include <functional>
#include <memory>
#include <vector>

#include "desktop/control_binding.h"
#include "platform/form.h"

namespace nimbrel {

/// The window of a form: its layout comes from the `.ui` file of the form's name, and each widget is tied to the
/// control of the same name. It decides nothing.
class FormWindow : public QDialog {
  Q_OBJECT

 public:
  /// Throws `std::logic_error` where layout and form do not fit each other.
  explicit FormWindow(Form& form, QWidget* parent = nullptr);

  /// Takes over what the form says now. The window of a form that is no longer open hides; showing is the owner's.
  void refresh();
  Form& form() { return form_; }

 signals:
  /// The author has done something that the form has carried out.
  void acted();
  /// F1.
  void helpWanted();

 protected:
  void closeEvent(QCloseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void reject() override;

 private:
  bool isEnterForContent(int key) const;
  void growToText();
  void bind();
  void act(const std::function<void()>& deed);
  void focus();

  Form& form_;
  std::vector<std::unique_ptr<ControlBinding>> bindings_;
};

}  // namespace nimbrel
