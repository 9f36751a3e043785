#include "platform/opener.h"

#include <gtest/gtest.h>
#include <tuple>

namespace nimbrel {
namespace {

struct RecordingOpener : Opener {
  void ShellExecuteA(std::string_view verb, std::string_view file, std::string_view parameters,
                     std::string_view folder, int showCommand) override {
    call = std::tuple(verb, file, parameters, folder, showCommand);
  }
  std::tuple<std::string_view, std::string_view, std::string_view, std::string_view, int> call;
};

TEST(OpenWithShell, PassesTheFixedArguments) {
  RecordingOpener opener;
  OpenWithShell(opener, "https://www.example.com/");
  EXPECT_EQ(opener.call, std::tuple("open", "https://www.example.com/", "1", "1", 0));
}

}  // namespace
}  // namespace nimbrel
