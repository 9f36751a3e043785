// Prints the commands that have a shortcut, for the help: place, shortcuts, caption and help topic, separated by tabs.
#include <algorithm>
#include <iostream>
#include <string>

#include "shell/command_table.h"

int main() {
  for (const auto& command : nimbrel::menuBar()) {
    if (command.shortcut.empty()) continue;
    std::string caption(command.caption);
    std::erase(caption, '&');
    std::cout << ((command.state & nimbrel::InTree) != 0 ? "tree" : "anywhere") << '\t' << command.shortcut
              << '\t' << caption << '\t' << command.helpTopic << '\n';
  }
}
