#include "forms/live_examples.h"

#include "text/paths.h"

namespace nimbrel {

void frmLiveExamples::ShowExample(std::string_view ExampleFile, std::string_view Caption) {
  isLiveExamplesWindowLoaded = true;
  isOpen = true;
  ++shows;
  navigate(brwWebBrowser, joinPath(joinPath(programFolder_, "Live Examples"), ExampleFile));
  caption = "Live Example for property: \"" + std::string(Caption) + "\"";
}

}  // namespace nimbrel
