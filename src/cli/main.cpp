#include <cstdlib>
#include <iostream>
#include <unistd.h>

#include "cli/nbrc.h"
#include "platform/posix/host_file_system.h"

int main(int argc, char** argv) {
  std::ios::sync_with_stdio(false);
  nimbrel::HostFileSystem files;
  const nimbrel::Console console(std::cin, std::cout, std::cerr, ::isatty(STDERR_FILENO) != 0);
  nimbrel::MenuInputs menus;
  const int status = nimbrel::nbrc(console, files, {argv + 1, argv + argc}, menus);
  // Output that cannot be written is an error.
  std::cout.flush();
  // Skips destructors: destroying the menus takes a tenth of the time of a large compile.
  if (!std::cout) std::cerr << "nbrc: standard output: cannot be written\n";
  std::_Exit(std::cout ? status : nimbrel::notAllDone);
}
