#pragma once

#include <string>
#include <vector>

#include "cli/console.h"
#include "cli/menu_input.h"
#include "platform/file_system.h"

namespace nimbrel {

/// A whole run of `nbrc` with the words of its call behind the program's name; gives the exit status. The menu
/// files that it reads go into `menus`.
int nbrc(const Console& console, FileSystem& files, std::vector<std::string> words, MenuInputs& menus);

}  // namespace nimbrel
