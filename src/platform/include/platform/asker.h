#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/file_error.h"
#include "text/message.h"

namespace nimbrel {

class Form;

enum class BoxIcon : std::uint8_t { Exclamation, Critical, Question, Information };
enum class BoxButton : std::uint8_t { OK, Yes, No, Cancel, Help, Overwrite, SaveAs, Reload };

/// A message box.
struct MessageBox {
  std::string title;
  std::string text;
  BoxIcon icon = BoxIcon::Exclamation;
  std::vector<BoxButton> buttons = {BoxButton::OK};
  std::optional<BoxButton> defaultButton = {};  ///< nullopt: the first button
  int helpTopic = 0;                            ///< topic that the Help button opens
  std::vector<std::string> paths = {};  ///< paths in `text`, which a screen shows in the form of its system

  BoxButton standard() const { return defaultButton.value_or(buttons.front()); }
};

/// A message box with an OK button and the exclamation icon.
MessageBox warning(const Message& message);

/// A file dialog. `folder` and `name` are preselected. Paths are in document form.
struct FileDialog {
  enum Kind : std::uint8_t { Open, Save };
  Kind kind;
  std::string title;
  std::string filter;  ///< description and pattern, separated by "|"
  std::string folder;
  std::string name;
};

/// Dialogs with the author. All calls return when the author has answered.
class Asker {
 public:
  virtual ~Asker() = default;

  virtual BoxButton MsgBox(const MessageBox& box) = 0;
  /// Returns the chosen path, or nullopt if the author cancels.
  virtual std::optional<std::string> chooseFile(const FileDialog& dialog) = 0;
  /// Returns the chosen colour as 0xBBGGRR, or nullopt if the author cancels. `start` is preselected.
  virtual std::optional<std::uint32_t> chooseColour(std::uint32_t start) = 0;
  /// Shows a form and returns when it is closed.
  virtual void ShowModal(Form& form) = 0;
  /// Records a failure that must not interrupt the author. No message box is shown.
  virtual void noteFailure(const Finding& finding) = 0;
};

}  // namespace nimbrel
