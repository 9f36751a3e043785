#pragma once

#include <string>
#include <string_view>
#include <utility>

#include "forms/form.h"

namespace nimbrel {

/// The window for example pages, which contains only a browser. There is one: when the author closes it, it hides
/// and keeps its place for the next example.
class frmLiveExamples : public Form {
 public:
  explicit frmLiveExamples(std::string programFolder)
      : Form("frmLiveExamples", ""), programFolder_(std::move(programFolder)) {}

  /// Shows an example. `ExampleFile` is relative to the folder of examples, `Caption` is that of the row.
  void ShowExample(std::string_view ExampleFile, std::string_view Caption);

  /// Distance between the browser and each edge of the window, in twips.
  static constexpr int margin = 50;

  bool isLiveExamplesWindowLoaded = false;  ///< the window exists, shown or hidden

  Control brwWebBrowser{*this, "brwWebBrowser", ControlKind::Browser};

 private:
  std::string programFolder_;
};

}  // namespace nimbrel
