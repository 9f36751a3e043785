#pragma once

#include <deque>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "forms/form.h"
#include "platform/memory/memory_file_system.h"
#include "platform/ports.h"

namespace nimbrel {

/// Answers dialogs from queues and records them. With an empty queue a message box gets its default button, and a
/// chooser is cancelled.
class ScriptedAsker : public Asker {
 public:
  BoxButton MsgBox(const MessageBox& box) override {
    boxes.push_back(box);
    return take(answers).value_or(box.standard());
  }
  std::optional<std::string> chooseFile(const FileDialog& dialog) override {
    dialogs.push_back(dialog);
    return take(files).value_or(std::nullopt);
  }
  std::optional<std::uint32_t> chooseColour(std::uint32_t) override {
    return take(colours).value_or(std::nullopt);
  }
  void ShowModal(Form& form) override {
    forms.emplace_back(form.name);
    form.isOpen = true;
    if (inForm) inForm(form);
  }
  void noteFailure(const Finding& finding) override { failures.push_back(finding); }

  /// False if an answer is left in a queue.
  bool isUsedUp() const { return answers.empty() && files.empty() && colours.empty(); }

  std::deque<BoxButton> answers;
  std::deque<std::optional<std::string>> files;      ///< std::nullopt cancels the dialog
  std::deque<std::optional<std::uint32_t>> colours;  ///< the same
  std::function<void(Form&)> inForm;                 ///< called with each modal form

  std::vector<MessageBox> boxes;
  std::vector<FileDialog> dialogs;
  std::vector<std::string> forms;  ///< names
  Findings failures;

 private:
  template <class T>
  static std::optional<T> take(std::deque<T>& queue) {
    if (queue.empty()) return std::nullopt;
    T first = std::move(queue.front());
    queue.pop_front();
    return first;
  }
};

/// A clipboard that other programs do not see. A test puts their content in `content`.
class ScriptedClipboard : public NodeClipboard {
 public:
  void put(Content own) override {
    content = std::move(own);
    isForeign = false;
  }
  bool hasForeign() const override { return isForeign; }
  Content foreign() const override { return content; }

  Content content;
  bool isForeign = false;
};

/// All ports in memory. Opens nothing, and records what the program would open.
struct ScriptedSystem : Opener, HelpSystem, ClassesRoot {
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
  void CreateClassKey(std::string_view key) override { classes[std::string(key)]; }
  void SetClassValue(std::string_view key, std::string_view, std::string_view value) override {
    classes.at(std::string(key)) = value;
  }

  MemoryFileSystem files;
  ScriptedAsker asker;
  MemorySettings settings;
  ScriptedClipboard clipboard;
  std::vector<std::string> opened;
  std::vector<int> topics;
  std::map<std::string, std::string> classes;  ///< values by key; a value needs its key first
  Ports ports{files, files, asker, settings, *this, *this, *this, clipboard, {}, [] { return 0.0; }};
};

}  // namespace nimbrel
