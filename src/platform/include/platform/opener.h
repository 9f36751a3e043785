#pragma once

#include <string_view>

namespace nimbrel {

/// Opens documents and addresses with the system's default program.
class Opener {
 public:
  virtual ~Opener() = default;

  /// Does not report failures.
  virtual void ShellExecuteA(std::string_view verb, std::string_view file, std::string_view parameters,
                             std::string_view folder, int showCommand) = 0;
};

/// Opens a path or an address.
void OpenWithShell(Opener& opener, std::string_view target);

}  // namespace nimbrel
