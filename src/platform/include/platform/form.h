#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

/// A window of the program without its drawing. A form decides everything: what its controls say, which of them
/// can be used, and what their events do. Whoever shows it (the desktop program, `nbrc play`) reads the controls
/// by name and hands what the author does to `Form`'s own functions. Texts are one-byte text, paths in document
/// form.
namespace nimbrel {

enum class ControlKind : std::uint8_t {
  Label,    ///< `text` is its caption
  Button,   ///< `text` is its caption
  Option,   ///< one of a group: setting it clears the others
  Check,    ///< `value` is its check mark
  Text,     ///< `text` is what stands in it
  List,     ///< `list` are its entries, `selected` those chosen; `text` the first of them
  Folder,   ///< `text` is the folder that is open
  Tabs,     ///< `list` are the captions, `text` the one in front
  Frame,    ///< holds others
  Browser,  ///< `text` is the page it shows
  Timer,    ///< runs while `value` is set
};

class Form;

/// One control of a form. A control that is disabled or hidden cannot be used.
struct Control {
  /// Enters itself in the form, which it is to be a member of.
  Control(Form& form, std::string_view name, ControlKind kind, std::string_view text = {});
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;
  ~Control() = default;

  bool usable() const { return enabled && visible && (frame == nullptr || frame->usable()); }

  const std::string_view name;
  const ControlKind kind;
  std::string text;
  std::vector<std::string> list;
  std::vector<std::size_t> selected;  ///< of a list, from 0
  bool manyAtOnce = false;            ///< of a list: several entries can be chosen
  bool enabled = true;
  bool visible = true;
  bool value = false;
  const Control* frame = nullptr;  ///< what it stands in: where that cannot be used, it cannot either
  int group = 0;                   ///< of options: which belong together
  int interval = 0;                ///< of a timer, milliseconds
  std::size_t visits = 0;          ///< of a browser: how many pages it was sent to

  /// What its use does: a click; another text, entry, folder or tab; the tick; the loaded page.
  std::function<void()> event;
  std::function<void()> doubleClick;
  /// Of a browser whose page lasts no longer than its loading: makes it anew.
  std::function<void()> reload;
};

class Form {
 public:
  Form(std::string_view formName, std::string_view formCaption) : name(formName), caption(formCaption) {}
  Form(const Form&) = delete;
  Form& operator=(const Form&) = delete;
  virtual ~Form() = default;

  const std::string_view name;
  std::string caption;
  bool isOpen = false;
  std::size_t shows = 0;  ///< of one that stands beside others: how often it was to come to the front
  /// The button that the Escape key stands for; empty if there is none.
  std::string_view cancelButton;
  /// What is to take the focus, all of its text selected. Whoever shows the form sees to it and clears this.
  const Control* toFocus = nullptr;

  const std::vector<Control*>& controls() const { return controls_; }
  Control* find(std::string_view controlName) const;

  /// The author's doing. What cannot be used, or is so already, raises no event.
  void click(Control& control);
  void enter(Control& control, std::string_view text);
  void check(Control& control, bool value);
  /// Chooses the entries of these positions in a list, or the tab.
  void choose(Control& control, std::vector<std::size_t> positions);

  /// Sets an option and clears the others of its group; no event.
  void setOption(Control& option);
  /// Sends a browser to a page.
  static void navigate(Control& browser, std::string_view page);

  /// The close box. A form may refuse, or hide itself.
  virtual void QueryClose() { Close(); }
  void Close() { isOpen = false; }

 private:
  friend struct Control;
  std::vector<Control*> controls_;
};

}  // namespace nimbrel
