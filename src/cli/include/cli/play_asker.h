#pragma once

#include <deque>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "cli/json.h"
#include "platform/ports.h"

namespace nimbrel {

/// An author who answers as a macro has told ahead.
class PlayAsker : public Asker {
 public:
  PlayAsker(Transcript& transcript, HelpSystem& help) : transcript_(transcript), help_(help) {}

  BoxButton MsgBox(const MessageBox& box) override;
  std::optional<std::string> chooseFile(const FileDialog& dialog) override;
  std::optional<std::uint32_t> chooseColour(std::uint32_t start) override;
  void ShowModal(Form& form) override;
  void noteFailure(const Finding& finding) override;

  /// Throws `MacroFault` for what is no button.
  void queueAnswer(std::string_view button);
  /// A path of the system's own form, or the word "cancel".
  void queueFile(std::string_view path);
  /// Six hexadecimal digits, red first, or the word "cancel".
  void queueColour(std::string_view colour);
  void queueForm(std::string_view name, std::vector<std::string> steps);

 private:
  void step(Form& form, std::string_view step);
  void assign(Form& form, Control& control, std::string_view text);
  static void closeAsCancelled(Form& form);

  Transcript& transcript_;
  HelpSystem& help_;
  std::deque<BoxButton> answers_;
  std::deque<std::optional<std::string>> files_;
  std::deque<std::optional<std::uint32_t>> colours_;
  std::map<std::string, std::deque<std::vector<std::string>>, std::less<>> forms_;
};

/// The rest of the system as a macro sees it: what is opened is told, and nothing else happens.
class PlayOpener : public Opener {
 public:
  explicit PlayOpener(Transcript& transcript) : transcript_(transcript) {}
  void ShellExecuteA(std::string_view verb, std::string_view file, std::string_view parameters,
                     std::string_view folder, int showCommand) override;

 private:
  Transcript& transcript_;
};

class PlayHelp : public HelpSystem {
 public:
  explicit PlayHelp(Transcript& transcript) : transcript_(transcript) {}
  bool openTopic(int topic) override;
  bool openContents() override;
  bool openSearch() override;

 private:
  Transcript& transcript_;
};

class PlayClasses : public ClassesRoot {
 public:
  void CreateClassKey(std::string_view) override {}
  void SetClassValue(std::string_view, std::string_view, std::string_view) override {}
};

}  // namespace nimbrel
