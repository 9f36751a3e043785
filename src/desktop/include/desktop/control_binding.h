#pragma once

#include <QWidget>
#include <functional>
#include <memory>

#include "platform/form.h"

namespace nimbrel {

/// One control of a form and the widget that shows it.
class ControlBinding {
 public:
  ControlBinding() = default;
  ControlBinding(const ControlBinding&) = delete;
  ControlBinding& operator=(const ControlBinding&) = delete;
  virtual ~ControlBinding() = default;

  /// Shows what the control says; touches only what differs, and raises no event.
  virtual void show() = 0;
};

/// Ties a control to a widget of a class that can show its kind; throws `std::logic_error` for any other.
/// `act` is called with what the author does, to be carried out; it shows the whole form anew afterwards.
///
/// A widget with the dynamic property "paths" holds paths, which are shown in the system's own form.
std::unique_ptr<ControlBinding> bindControl(Form& form, Control& control, QWidget& widget,
                                            std::function<void(const std::function<void()>&)> act);

/// A timer needs no widget.
std::unique_ptr<ControlBinding> bindTimer(Control& control, QObject& owner,
                                          std::function<void(const std::function<void()>&)> act);

}  // namespace nimbrel
