#pragma once

#include <string_view>

#include "platform/form.h"
#include "platform/program_state.h"

namespace nimbrel {

/// The window for example pages, which contains only a browser. There is one: when the author closes it, it hides
/// and keeps its place for the next example.
class frmLiveExamples : public Form {
 public:
  explicit frmLiveExamples(ProgramState& state) : Form("frmLiveExamples", ""), state_(state) {}

  /// Shows an example. `ExampleFile` is relative to the folder of examples, `Caption` is that of the row.
  void ShowExample(std::string_view ExampleFile, std::string_view Caption);

  /// Distance between the browser and each edge of the window, in twips.
  static constexpr int margin = 50;

  Control brwWebBrowser{*this, "brwWebBrowser", ControlKind::Browser};

 private:
  ProgramState& state_;
};

}  // namespace nimbrel
