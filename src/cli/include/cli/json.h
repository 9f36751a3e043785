#pragma once

#include <cstdint>
#include <iosfwd>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "model/document.h"
#include "platform/asker.h"
#include "platform/settings_store.h"
#include "shell/main_window.h"

/// All JSON that `nbrc` prints and reads. Its source file alone includes the JSON library, which is slow to compile.
/// Texts of documents are Windows-1252 and are printed as UTF-8; bytes and singles are numbers.
namespace nimbrel {

/// The whole document as one object. It is printed element by element, to save memory in large documents.
void printDocument(std::ostream& out, const Document& document);

/// Settings as `Transcript::settings` prints them. `readSettings` adds them to those that are there; it throws
/// `MacroFault`, with `path` in its text, for anything else.
std::string settingsText(const MemorySettings& settings);
void readSettings(MemorySettings& settings, std::string_view text, const std::string& path);

/// What happens while a macro runs, one JSON object per line.
class Transcript {
 public:
  explicit Transcript(std::ostream& out) : out_(out) {}

  void message(const MessageBox& box, BoxButton answer);
  /// `result` is a host path.
  void fileDialog(const FileDialog& dialog, const std::optional<std::string>& result);
  void form(const Form& form);
  void control(const Form& form, const Control& control);
  void shell(std::string_view target);
  void help(int topic);
  void help(std::string_view page);
  void refused(std::string_view command);
  void closed(bool isClosed);
  void found(const std::vector<const Node*>& nodes);
  void replaced(std::size_t count);
  void error(std::string_view text);
  bool hadErrors() const { return hadErrors_; }

  void tree(const frmMain& window);
  void state(const frmMain& window);
  void commands(const frmMain& window);
  void sheet(const PropertySheet& sheet);
  /// `compiled` has the numbers of the last compile.
  void element(std::string_view key, const Element& element, const KeyedNumbers& compiled);
  void settings(const MemorySettings& settings);

 private:
  std::ostream& out_;
  bool hadErrors_ = false;
};

}  // namespace nimbrel
