#pragma once

#include <string>
#include <vector>

#include "platform/memory/memory_file_system.h"
#include "properties/element_values.h"
#include "properties/property_sheet.h"

namespace nimbrel {

/// Answers with what a test put there, and notes what it was asked.
struct FakeSystem : Asker, HelpSystem, Opener, ClassesRoot {
  BoxButton MsgBox(const MessageBox& box) override { return box.standard(); }
  std::optional<std::string> chooseFile(const FileDialog& dialog) override {
    title = dialog.title;
    return file;
  }
  std::optional<std::uint32_t> chooseColour(std::uint32_t) override { return colour; }
  void ShowModal(Form& form) override {
    title = form.caption;
    if (inForm) inForm(form);
  }
  void noteFailure(const Finding&) override {}
  bool openTopic(int number) override {
    topic = number;
    return true;
  }
  bool openContents() override { return false; }
  bool openSearch() override { return false; }
  void ShellExecuteA(std::string_view, std::string_view, std::string_view, std::string_view, int) override {}
  void CreateClassKey(std::string_view) override {}
  void SetClassValue(std::string_view, std::string_view, std::string_view) override {}

  std::optional<std::string> file;
  std::optional<std::uint32_t> colour;
  std::function<void(Form&)> inForm;
  std::string title;
  int topic = 0;
};

/// A sheet with what it needs; it notes each `Change`.
struct TestSheet {
  explicit TestSheet(const SheetTable& table) : sheet(table, ports, state, viewer) {
    state.programFolder = "C:\\program";
    sheet.Change = [this](int ordinal) { changes.push_back(ordinal); };
  }

  /// What the cell says once `text` was typed there.
  std::string edit(int ordinal, int col, std::string_view text) {
    sheet.EnterCell(ordinal, col);
    sheet.type(text);
    sheet.LeaveCell();
    return sheet.Shown(ordinal, col).str();
  }
  std::string text(int ordinal, int col) const {
    return std::get<SharedText>(sheet.GetProperty(ordinal, col)).str();
  }

  FakeSystem system;
  MemoryFileSystem files;
  MemorySettings settings;
  Ports ports{files, system, settings, system, system, system, {"Zapf", "arial"}, {}};
  ProgramState state;
  frmLiveExamples viewer{state};
  PropertySheet sheet;
  std::vector<int> changes;
};

}  // namespace nimbrel
