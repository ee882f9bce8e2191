// The commands that act on the value with the focus, and those that choose the model of a level.
#pragma once

#include <vector>

#include "app/command_table.h"

namespace lorvane {

/// Adds the commands; the program must outlive them.
void addValueCommands(std::vector<Command>& commands, const Program& program);

/// The key of a command that sets the model of a level, random or fixed.
std::string modelKey(bool fixed, int level);

}  // namespace lorvane
