#pragma once

#include <string_view>

namespace nimbrel {

/// The system's way to open a document or an address with the program that is meant for it.
class Opener {
 public:
  virtual ~Opener() = default;

  /// Whether it could be opened is not told.
  virtual void ShellExecuteA(std::string_view verb, std::string_view file, std::string_view parameters,
                             std::string_view folder, int showCommand) = 0;
};

/// Opens a path or an address.
void OpenWithShell(Opener& opener, std::string_view target);

}  // namespace nimbrel
