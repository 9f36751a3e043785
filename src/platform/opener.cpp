#include "platform/opener.h"

namespace nimbrel {

void OpenWithShell(Opener& opener, std::string_view target) {
  // Quirk: parameters and folder are "1" and the show command is 0, although they have no meaning here.
  opener.ShellExecuteA("open", target, "1", "1", 0);
}

}  // namespace nimbrel
