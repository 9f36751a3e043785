#include "forms/form.h"

#include <algorithm>

namespace nimbrel {

Control::Control(Form& form, std::string_view n, ControlKind k, std::string_view t)
    : name(n), kind(k), text(t) {
  form.controls_.push_back(this);
}

Control* Form::find(std::string_view controlName) const {
  const auto found = std::ranges::find(controls_, controlName, [](const Control* c) { return c->name; });
  return found == controls_.end() ? nullptr : *found;
}

void Form::click(Control& control) {
  if (!control.usable()) return;
  if (control.kind == ControlKind::Option) {
    if (control.value) return;
    setOption(control);
  }
  if (control.event) control.event();
}

void Form::enter(Control& control, std::string_view text) {
  if (!control.usable() || control.text == text) return;
  control.text = text;
  if (control.event) control.event();
}

void Form::check(Control& control, bool value) {
  if (!control.usable() || control.value == value) return;
  control.value = value;
  if (control.event) control.event();
}

void Form::choose(Control& control, std::vector<std::size_t> positions) {
  std::erase_if(positions, [&](std::size_t position) { return position >= control.list.size(); });
  if (!control.usable() || control.selected == positions) return;
  control.selected = std::move(positions);
  control.text = control.selected.empty() ? std::string() : control.list[control.selected.front()];
  if (control.event) control.event();
}

void Form::setOption(Control& option) {
  for (Control* other : controls_) {
    if (other->kind == ControlKind::Option && other->group == option.group) other->value = other == &option;
  }
}

void Form::navigate(Control& browser, std::string_view page) {
  browser.text = page;
  ++browser.visits;
}

}  // namespace nimbrel
