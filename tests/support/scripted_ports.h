#pragma once

#include <deque>
#include <functional>
#include <string>
#include <vector>

#include "platform/memory/memory_file_system.h"
#include "platform/ports.h"

namespace nimbrel {

/// An author who answers as told ahead; what is asked is kept.
class ScriptedAsker : public Asker {
 public:
  BoxButton MsgBox(const MessageBox& box) override {
    boxes.push_back(box);
    if (answers.empty()) return box.standard();
    const auto answer = answers.front();
    answers.pop_front();
    return answer;
  }
  std::optional<std::string> chooseFile(const FileDialog& dialog) override {
    dialogs.push_back(dialog);
    return file;
  }
  std::optional<std::uint32_t> chooseColour(std::uint32_t) override { return std::nullopt; }
  void ShowModal(Form& form) override {
    forms.emplace_back(form.name);
    form.isOpen = true;
    if (inForm) inForm(form);
  }
  void noteFailure(const Finding& finding) override { failures.push_back(finding); }

  std::deque<BoxButton> answers;
  std::optional<std::string> file;
  std::function<void(Form&)> inForm;
  std::vector<MessageBox> boxes;
  std::vector<FileDialog> dialogs;
  std::vector<std::string> forms;
  Findings failures;
};

/// The rest of the system: what is opened is kept.
struct ScriptedPorts : Opener, HelpSystem, ClassesRoot {
  void ShellExecuteA(std::string_view, std::string_view file, std::string_view, std::string_view,
                     int) override {
    opened.emplace_back(file);
  }
  bool openTopic(int topic) override {
    topics.push_back(topic);
    return true;
  }
  bool openContents() override { return true; }
  bool openSearch() override { return true; }
  void CreateClassKey(std::string_view) override {}
  void SetClassValue(std::string_view, std::string_view, std::string_view) override {}

  MemoryFileSystem files;
  ScriptedAsker asker;
  MemorySettings settings;
  std::vector<std::string> opened;
  std::vector<int> topics;
  Ports ports{files, asker, settings, *this, *this, *this, {}, [] { return 0.0; }};
};

}  // namespace nimbrel
