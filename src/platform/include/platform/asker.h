#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/file_error.h"
#include "platform/form.h"
#include "text/message.h"

namespace nimbrel {

enum class BoxIcon : std::uint8_t { Exclamation, Critical, Question, Information };
enum class BoxButton : std::uint8_t { OK, Yes, No, Cancel, Help };

/// A message box. Without a stated default its first button is the default.
struct MessageBox {
  std::string title;
  std::string text;
  BoxIcon icon = BoxIcon::Exclamation;
  std::vector<BoxButton> buttons = {BoxButton::OK};
  std::optional<BoxButton> defaultButton = {};
  int helpTopic = 0;                    ///< what its Help button opens
  std::vector<std::string> paths = {};  ///< those within `text`, for a screen that shows them in its own form

  BoxButton standard() const { return defaultButton.value_or(buttons.front()); }
};

/// A refusal or report with one button.
MessageBox warning(const Message& message);

/// The system's chooser of a file. `folder` is where it starts, `name` what stands in it.
struct FileDialog {
  enum Kind : std::uint8_t { Open, Save };
  Kind kind;
  std::string title;
  std::string filter;  ///< description and pattern, parted by "|"
  std::string folder;
  std::string name;
};

/// How the program reaches the author. Everything waits for the answer.
class Asker {
 public:
  virtual ~Asker() = default;

  virtual BoxButton MsgBox(const MessageBox& box) = 0;
  /// The chosen path, none if the author cancels.
  virtual std::optional<std::string> chooseFile(const FileDialog& dialog) = 0;
  /// The chosen colour, blue in the high byte and red in the low one; none if the author cancels. `start` is where
  /// the choice begins.
  virtual std::optional<std::uint32_t> chooseColour(std::uint32_t start) = 0;
  /// Shows a form until it is closed.
  virtual void ShowModal(Form& form) = 0;
  /// What went wrong in a step that is to fail in silence. The desktop program says nothing of it.
  virtual void noteFailure(const Finding& finding) = 0;
};

}  // namespace nimbrel
