// Commands that come in series: one for every value of a choice, every level, number of decimals, step of the
// arrows and column, and their keys.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "app/program.h"
#include "screen/command_book.h"
#include "session/field_book.h"

namespace lorvane {

using Keys = std::vector<std::string>;

/// Adds all commands that come in series. The program must outlive them.
void addCommandSeries(std::vector<Command>& commands, const Program& program);

/// The key of a command of one level, from a pattern with "{}" in the place of the level.
std::string ofLevel(std::string_view pattern, int level);

/// The key of the command that explains a column.
std::string detailsKey(std::string_view column);

/// The keys of the commands for the decimals of a field, and of those for its steps; empty where it has none.
Keys decimalsKeys(const Field& field);
Keys stepKeysOf(const Field& field);

}  // namespace lorvane
