// The rows of the commands of the graph screen, and its menus.
#pragma once

#include <vector>

#include "app/program.h"
#include "screen/command_book.h"

namespace lorvane {

/// Adds the commands of the graph to those of the program, which must outlive them.
void addGraphCommands(std::vector<Command>& commands, const Program& program);

/// The menus of the graph and its tool bar.
std::vector<Band> graphBands();

}  // namespace lorvane
