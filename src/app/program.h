// What the commands of the program act on.
#pragma once

#include "graphs/graph_screen.h"
#include "guidance/about_window.h"
#include "guidance/details.h"
#include "guidance/graph_guide.h"
#include "guidance/guide.h"
#include "guidance/keyboard_page.h"
#include "guidance/manuals.h"
#include "persistence/scenario_window.h"
#include "persistence/start_screen.h"
#include "persistence/study_files.h"
#include "platform/clipboard.h"
#include "reporting/report_screen.h"
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
    GraphScreen& graph;
    GraphGuide& graphGuide;
    ReportScreen& report;
    Clipboard& clipboard;
    AboutWindow& about;
    KeyboardPage& keyboard;
    Guide& guide;
    const Manuals& manuals;
};

}  // namespace lorvane
