#include <cstdio>
#include <exception>

#include "platform/posix/program_folder.h"

/// A program that tests copy to a folder to start it there.
int main(int count, char** words) try {
  std::puts(nimbrel::programFolder(count > 1 ? std::optional<std::string>(words[1]) : std::nullopt).c_str());
  return 0;
} catch (const std::exception& error) {
  std::puts(error.what());
  return 1;
}
