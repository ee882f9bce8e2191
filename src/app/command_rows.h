// The rows of the book of commands and the menus. A new command is one row here, with its key in a menu.
#pragma once

#include <vector>

#include "guidance/details.h"
#include "persistence/scenario_window.h"
#include "persistence/start_screen.h"
#include "persistence/study_files.h"
#include "platform/clipboard.h"
#include "screen/command_book.h"
#include "screen/design.h"
#include "screen/small_dialogs.h"
#include "search/mdes_window.h"
#include "search/optimal_window.h"

namespace lorvane {

/// What commands act on.
struct Program {
    Session& session;
    Design& design;
    SmallDialogs& dialogs;
    Details& details;
    MdesWindow& mdes;
    OptimalWindow& optimal;
    ScenarioWindow& scenarios;
    StudyFiles& files;
    StartScreen& start;
    Clipboard& clipboard;
};

/// All commands of a program, which must outlive them.
std::vector<Command> commandRows(const Program& program);

/// The menus, popups and the tool bar.
std::vector<Band> bandRows();

}  // namespace lorvane
