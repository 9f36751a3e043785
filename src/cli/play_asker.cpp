#include "cli/play_asker.h"

#include <algorithm>
#include <charconv>

#include "cli/macro.h"
#include "platform/posix/host_paths.h"
#include "text/windows1252.h"

namespace nimbrel {
namespace {

Control& controlOf(Form& form, std::string_view name) {
  if (auto* control = form.find(name)) return *control;
  throw MacroFault(std::string(form.name) + " has no control " + std::string(name));
}

}  // namespace

BoxButton PlayAsker::MsgBox(const MessageBox& box) {
  const auto answer = ScriptedAsker::MsgBox(box);
  if (std::ranges::find(box.buttons, answer) == box.buttons.end()) {
    throw MacroFault("the message \"" + box.title + "\" has no button " + nameOf(answer));
  }
  transcript_.message(box, answer);
  if (answer == BoxButton::Help) help_.openTopic(box.helpTopic);
  return answer;
}

std::optional<std::string> PlayAsker::chooseFile(const FileDialog& dialog) {
  const auto result = ScriptedAsker::chooseFile(dialog);
  transcript_.fileDialog(dialog, result);
  return result ? std::optional(fromHostPath(*result)) : std::nullopt;
}

void PlayAsker::noteFailure(const Finding& finding) {
  transcript_.error(finding.path.empty() ? finding.text() : finding.path + ": " + finding.text());
}

void PlayAsker::ShowModal(Form& form) {
  transcript_.form(form);
  form.isOpen = true;
  std::vector<std::string> steps;
  if (auto& queue = steps_[std::string(form.name)]; !queue.empty()) {
    steps = std::move(queue.front());
    queue.pop_front();
  }
  for (const auto& one : steps) {
    if (!form.isOpen) throw MacroFault(std::string(form.name) + " is closed before the step " + one);
    step(form, one);
  }
  if (form.isOpen) closeAsCancelled(form);
}

void PlayAsker::closeAsCancelled(Form& form) {
  if (form.cancelButton.empty()) {
    form.QueryClose();
  } else {
    form.click(*form.find(form.cancelButton));
  }
  form.Close();
}

void PlayAsker::step(Form& form, std::string_view step) {
  const auto equals = step.find('=');
  if (equals != std::string_view::npos) {
    assign(form, controlOf(form, step.substr(0, equals)), step.substr(equals + 1));
    return;
  }
  if (step.empty()) throw MacroFault("an empty step");
  auto& control = controlOf(form, step.substr(0, step.size() - 1));
  if (step.back() == '!') {
    form.click(control);
  } else if (step.back() == '?') {
    transcript_.control(form, control);
  } else {
    throw MacroFault("unknown step: " + std::string(step));
  }
}

void PlayAsker::assign(Form& form, Control& control, std::string_view text) {
  switch (control.kind) {
    case ControlKind::Text:
    case ControlKind::Folder: form.enter(control, text); break;
    case ControlKind::Check: form.check(control, text == "1"); break;
    case ControlKind::List:
    case ControlKind::Tabs: {
      const auto found = std::ranges::find(control.list, text);
      if (found == control.list.end()) {
        throw MacroFault(std::string(control.name) + " has no entry " + std::string(text));
      }
      form.choose(control, {static_cast<std::size_t>(found - control.list.begin())});
      break;
    }
    default: throw MacroFault(std::string(control.name) + " takes no text");
  }
}

void PlayAsker::queueAnswer(std::string_view button) { answers.push_back(buttonNamed(button)); }

void PlayAsker::queueFile(std::string_view path) {
  files.push_back(path == "cancel" ? std::nullopt : std::optional(absoluteHostPath(toUtf8(path))));
}

/// The macro has red in the high byte, the chooser blue.
void PlayAsker::queueColour(std::string_view colour) {
  if (colour == "cancel") {
    colours.emplace_back(std::nullopt);
    return;
  }
  std::uint32_t rgb = 0;
  constexpr std::size_t digits = 6;
  const auto* end = colour.data() + colour.size();
  const auto parsed = std::from_chars(colour.data(), end, rgb, 16);
  if (colour.size() != digits || parsed.ptr != end) throw MacroFault("no colour: " + std::string(colour));
  colours.emplace_back(((rgb & 0xFFU) << 16U) | (rgb & 0xFF00U) | (rgb >> 16U));
}

void PlayAsker::queueForm(std::string_view name, std::vector<std::string> steps) {
  steps_[std::string(name)].push_back(std::move(steps));
}

void PlaySystem::ShellExecuteA(std::string_view, std::string_view file, std::string_view, std::string_view,
                               int) {
  transcript_.shell(file);
}

bool PlaySystem::openTopic(int topic) {
  transcript_.help(topic);
  return true;
}

bool PlaySystem::openContents() {
  transcript_.help("contents");
  return true;
}

bool PlaySystem::openSearch() {
  transcript_.help("search");
  return true;
}

}  // namespace nimbrel
