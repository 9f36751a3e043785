#pragma once

#include <QWidget>
#include <functional>
#include <vector>

#include "platform/ports.h"

namespace nimbrel {

class FormWindow;

/// Asks the user with real windows.
class QtAsker : public Asker {
 public:
  /// The parent of the windows that this class opens.
  void setMainWindow(QWidget* window) { main_ = window; }
  void setHelp(HelpSystem* help) { help_ = help; }
  /// `callback` is called with true before the first modal window opens, and with false after the last one has
  /// closed.
  void onModalChange(std::function<void(bool)> callback) { onModalChange_ = std::move(callback); }

  BoxButton MsgBox(const MessageBox& box) override;
  std::optional<std::string> chooseFile(const FileDialog& dialog) override;
  std::optional<std::uint32_t> chooseColour(std::uint32_t start) override;
  void ShowModal(Form& form) override;
  void noteFailure(const Finding& finding) override;

 private:
  class ModalScope;
  /// The parent of the next window.
  QWidget* owner() const;
  /// Hides forms that have closed themselves and then ask for something.
  void hideClosed();

  QWidget* main_ = nullptr;
  HelpSystem* help_ = nullptr;
  std::function<void(bool)> onModalChange_;
  std::vector<FormWindow*> open_;
  int modalCount_ = 0;
};

/// Qt's form of a file filter: "Images (*.gif)|*.gif;*.jpg" becomes "Images (*.gif *.jpg)".
QString fileFilter(std::string_view filter);

}  // namespace nimbrel
