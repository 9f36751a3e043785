#pragma once

#include <string_view>

#include "platform/form.h"
#include "platform/program_state.h"

namespace nimbrel {

/// The viewer of example pages, a browser and nothing else; there is one. Closed, it hides and keeps its place
/// for the next example, until the main window gives it up at its end.
class frmLiveExamples : public Form {
 public:
  explicit frmLiveExamples(ProgramState& state) : Form("frmLiveExamples", ""), state_(state) {}

  /// Shows the window with the page of an example; `ExampleFile` is relative to the folder of examples,
  /// `Caption` the property's.
  void ShowExample(std::string_view ExampleFile, std::string_view Caption);

  /// Twips between the browser and the window's edges, on each side.
  static constexpr int margin = 50;

  Control brwWebBrowser{*this, "brwWebBrowser", ControlKind::Browser};

 private:
  ProgramState& state_;
};

}  // namespace nimbrel
