#pragma once

#include <deque>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "cli/json.h"
#include "forms/scripted_system.h"

namespace nimbrel {

/// Answers dialogs with what the statements of a macro queued, and prints each dialog. Queued file paths are host
/// paths.
class PlayAsker : public ScriptedAsker {
 public:
  PlayAsker(Transcript& transcript, HelpSystem& help) : transcript_(transcript), help_(help) {}

  /// Throws `MacroFault` if the box does not have the queued button.
  BoxButton MsgBox(const MessageBox& box) override;
  std::optional<std::string> chooseFile(const FileDialog& dialog) override;
  /// Throws `MacroFault` for a wrong step, and for steps that are left when the form has closed.
  void ShowModal(Form& form) override;
  void noteFailure(const Finding& finding) override;

  /// Throws `MacroFault` for an unknown button.
  void queueAnswer(std::string_view button);
  /// A host path, or the word "cancel".
  void queueFile(std::string_view path);
  /// Six hexadecimal digits, red first, or the word "cancel".
  void queueColour(std::string_view colour);
  void queueForm(std::string_view name, std::vector<std::string> steps);

 private:
  void step(Form& form, std::string_view step);
  static void assign(Form& form, Control& control, std::string_view text);
  static void closeAsCancelled(Form& form);

  Transcript& transcript_;
  HelpSystem& help_;
  std::map<std::string, std::deque<std::vector<std::string>>, std::less<>> steps_;  ///< by form
};

/// The other ports of a macro: prints what the program opens, and registers nothing.
class PlaySystem : public Opener, public HelpSystem, public ClassesRoot {
 public:
  explicit PlaySystem(Transcript& transcript) : transcript_(transcript) {}

  void ShellExecuteA(std::string_view verb, std::string_view file, std::string_view parameters,
                     std::string_view folder, int showCommand) override;
  bool openTopic(int topic) override;
  bool openContents() override;
  bool openSearch() override;
  void CreateClassKey(std::string_view) override {}
  void SetClassValue(std::string_view, std::string_view, std::string_view) override {}

 private:
  Transcript& transcript_;
};

}  // namespace nimbrel
