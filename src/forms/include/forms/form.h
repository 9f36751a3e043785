#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

/// Dialogs without a toolkit. A form contains all logic: the state of its controls and the functions that run
/// on their events. The front end (the desktop program, `nbrc play`, a test) finds the controls by name,
/// shows them, and reports the author's actions by calling the functions of `Form`. Texts are one-byte text,
/// paths in document form.
namespace nimbrel {

enum class ControlKind : std::uint8_t {
  Label,    ///< `text` is its caption
  Button,   ///< `text` is its caption
  Option,   ///< one of a group: setting it clears the others
  Check,    ///< `value` is its check mark
  Text,     ///< `text` is its content
  List,     ///< `list` has the entries, `selected` their selected positions, `text` the first selected entry
  Folder,   ///< `text` is the open folder
  Tabs,     ///< `list` has the captions, `text` is that of the current tab
  Frame,    ///< contains other controls
  Browser,  ///< `text` is the path or address of the page
  Timer,    ///< runs while `value` is set
};

class Form;

/// One control of a form.
struct Control {
  /// Adds the control to `form`, of which it must be a member.
  Control(Form& form, std::string_view name, ControlKind kind, std::string_view text = {});
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;
  ~Control() = default;

  /// Whether the author can use it: enabled and visible, and its frame is usable.
  bool usable() const { return enabled && visible && (frame == nullptr || frame->usable()); }

  const std::string_view name;
  const ControlKind kind;
  std::string text;
  std::vector<std::string> list;
  std::vector<std::size_t> selected;  ///< for a list: positions, from 0
  bool manyAtOnce = false;            ///< for a list: several entries can be selected
  bool enabled = true;
  bool visible = true;
  bool value = false;
  const Control* frame = nullptr;  ///< the frame that contains it, or nullptr
  int group = 0;                   ///< for an option: options with the same number belong together
  int interval = 0;                ///< for a timer: milliseconds
  std::size_t visits = 0;          ///< for a browser: the number of pages it has been sent to

  /// Called after the author's action: a click or another text, entry, folder or tab. For a timer: on each
  /// tick. For a browser: when a page has loaded.
  std::function<void()> event;
  std::function<void()> doubleClick;
  /// For a browser whose page is deleted after loading: creates the page again.
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
  std::size_t shows = 0;  ///< for a modeless form: incremented to bring it to the front
  /// The name of the button that the Escape key clicks; empty if there is none.
  std::string_view cancelButton;
  /// A control that is to get the focus, with its text selected. The front end does so and resets this to
  /// nullptr.
  const Control* toFocus = nullptr;

  const std::vector<Control*>& controls() const { return controls_; }
  /// The control with that name, or nullptr.
  Control* find(std::string_view controlName) const;

  // Actions of the author. No event is raised if the control is not usable or already has that state.
  void click(Control& control);
  void enter(Control& control, std::string_view text);
  void check(Control& control, bool value);
  /// Selects entries of a list, or a tab, by position. Positions out of range are ignored.
  void choose(Control& control, std::vector<std::size_t> positions);

  /// Sets an option and clears the others of its group, without an event.
  void setOption(Control& option);
  /// Sends a browser to a path or address.
  static void navigate(Control& browser, std::string_view page);

  /// Called by the close box of the window. A form may refuse to close, or hide itself instead.
  virtual void QueryClose() { Close(); }
  void Close() { isOpen = false; }

 private:
  friend struct Control;
  std::vector<Control*> controls_;
};

}  // namespace nimbrel
