// The rows of the book of commands. A new command is one row here, with its key in a menu.
#pragma once

#include <vector>

#include "app/program.h"
#include "screen/command_book.h"

namespace lorvane {

/// All commands of a program, which must outlive them.
std::vector<Command> commandRows(const Program& program);

}  // namespace lorvane
