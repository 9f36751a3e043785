#pragma once

#include <QWidget>
#include <functional>
#include <vector>

#include "platform/ports.h"

namespace nimbrel {

class FormWindow;

/// Reaches the author with real windows.
class QtAsker : public Asker {
 public:
  /// The window that all others belong to, once there is one.
  void setMainWindow(QWidget* window) { main_ = window; }
  void setHelp(HelpSystem* help) { help_ = help; }
  /// Called with true as the first window comes up that waits for its answer, with false as the last one goes.
  void onWaiting(std::function<void(bool)> told) { waiting_ = std::move(told); }

  BoxButton MsgBox(const MessageBox& box) override;
  std::optional<std::string> chooseFile(const FileDialog& dialog) override;
  std::optional<std::uint32_t> chooseColour(std::uint32_t start) override;
  void ShowModal(Form& form) override;
  void noteFailure(const Finding& finding) override;

 private:
  class Wait;
  /// What a new window is to stand over.
  QWidget* owner() const;
  /// A form that closed itself ahead of asking is to be gone from the screen.
  void hideClosed();

  QWidget* main_ = nullptr;
  HelpSystem* help_ = nullptr;
  std::function<void(bool)> waiting_;
  std::vector<FormWindow*> open_;
  int waits_ = 0;
};

/// The filter of a file chooser as Qt writes it, for a description and patterns parted by "|" and ";".
QString fileFilter(std::string_view filter);

}  // namespace nimbrel
