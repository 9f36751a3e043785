#pragma once

#include <QWidget>
#include <memory>

#include "desktop/run_action.h"
#include "forms/form.h"

namespace nimbrel {

/// Connects a control of a form with the widget that shows it.
class ControlBinding {
 public:
  ControlBinding() = default;
  ControlBinding(const ControlBinding&) = delete;
  ControlBinding& operator=(const ControlBinding&) = delete;
  virtual ~ControlBinding() = default;

  /// Updates the widget from the control, only where they differ, and without raising an event.
  virtual void refresh() = 0;
};

/// Binds a control to a widget. Throws `std::logic_error` if a widget of this class cannot show the control.
/// `run` runs what the user does and then refreshes the whole form.
///
/// A widget with the dynamic property "paths" shows paths, in the form of this system.
std::unique_ptr<ControlBinding> bindControl(Form& form, Control& control, QWidget& widget, ActionRunner run);

/// A timer needs no widget.
std::unique_ptr<ControlBinding> bindTimer(Control& control, QObject& owner, ActionRunner run);

}  // namespace nimbrel
