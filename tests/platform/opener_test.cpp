#include "platform/opener.h"

#include <gmock/gmock.h>

namespace nimbrel {
namespace {

class RecordingOpener : public Opener {
 public:
  MOCK_METHOD(void, ShellExecuteA,
              (std::string_view verb, std::string_view file, std::string_view parameters,
               std::string_view folder, int showCommand),
              (override));
};

TEST(OpenWithShell, HandsOverTheKeptArguments) {
  testing::StrictMock<RecordingOpener> opener;
  const std::string_view one = "1";
  EXPECT_CALL(opener, ShellExecuteA(std::string_view("open"), std::string_view("https://www.example.com/"),
                                    one, one, 0));
  OpenWithShell(opener, "https://www.example.com/");
}

}  // namespace
}  // namespace nimbrel
