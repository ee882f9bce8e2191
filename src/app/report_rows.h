// The rows of the commands of the report and its viewer, and its menus.
#pragma once

#include <vector>

#include "app/program.h"
#include "screen/command_book.h"

namespace lorvane {

/// Adds the commands of the report to those of the program, which must outlive them.
void addReportCommands(std::vector<Command>& commands, const Program& program);

/// The menus of the viewer and its tool bar.
std::vector<Band> reportBands();

/// The settings of the report, for the menu of the main screen.
std::vector<std::string> reportSettingKeys();

}  // namespace lorvane
