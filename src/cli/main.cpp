#include <iostream>
#include <unistd.h>

#include "cli/nbrc.h"
#include "platform/posix/host_file_system.h"

int main(int argc, char** argv) {
  std::ios::sync_with_stdio(false);
  nimbrel::HostFileSystem files;
  const nimbrel::Console console(std::cout, std::cerr, ::isatty(STDERR_FILENO) != 0);
  const int status = nimbrel::nbrc(console, files, {argv + 1, argv + argc});
  // What could not be printed was not done.
  std::cout.flush();
  return std::cout ? status : nimbrel::notAllDone;
}
