#pragma once

#include "platform/opener.h"

namespace nimbrel {

/// Opens paths and web addresses with the user's default programs.
class DesktopOpener : public Opener {
 public:
  void ShellExecuteA(std::string_view verb, std::string_view file, std::string_view parameters,
                     std::string_view folder, int showCommand) override;
};

}  // namespace nimbrel
