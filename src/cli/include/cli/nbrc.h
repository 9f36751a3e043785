#pragma once

#include <string>
#include <vector>

#include "cli/console.h"
#include "cli/menu_input.h"
#include "platform/file_system.h"

namespace nimbrel {

/// Runs `nbrc` with the arguments after the program's name. Returns the exit status. `menus` gets the menu files that
/// it reads.
int nbrc(const Console& console, FileSystem& files, std::vector<std::string> words, MenuInputs& menus);

}  // namespace nimbrel
