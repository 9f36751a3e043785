#include "platform/opener.h"

namespace nimbrel {

void OpenWithShell(Opener& opener, std::string_view target) {
  // kept: parameters and folder are "1" and the show command is 0, though none of them means anything here.
  opener.ShellExecuteA("open", target, "1", "1", 0);
}

}  // namespace nimbrel
