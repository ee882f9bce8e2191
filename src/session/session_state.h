// What a session holds: the study, the settings beside it, how results are displayed, the scenarios. Plain
// data; the values here are those of a new study.
#pragma once

#include "engine/per_level.h"
#include "engine/study.h"
#include "session/currency.h"
#include "session/scenario_grid.h"

namespace lorvane {

enum class DisplayModes { digits = 1, graph = 2 };
enum class SchematicModes { off = 1, automatic = 2, on = 3 };
enum class DetailLevels { none = 1, moderate = 2, full = 3 };
enum class PaperSizes { usLetter = 1, a4 = 2 };
enum class Inclusions { include = 1, leaveOut = 2 };

/// Settings that belong to the study: its file keeps them, and undo takes them back.
struct StudySettings {
    int IterationsForOptimal = 30;
    bool AllowLowCellCounts = false;
    DetailLevels CellCountDetail = DetailLevels::full;
    int ReportFont = 3;
    PaperSizes ReportPaper = PaperSizes::usLetter;
    Inclusions ReportSpans = Inclusions::include;
    Inclusions ReportSpansChoice = Inclusions::include;  ///< the user's own, while the study decides
    Inclusions ReportCosts = Inclusions::include;
    int ScenarioNumber = 0;  ///< scenario names handed out so far
    Currency currency;

    // Units of the last decimal that one step of an arrow moves a field.
    PerLevel<int> IncN;
    PerLevel<int> IncCost;
    int IncMRange = 1;
    int IncMean = 1;
    int IncSD = 1;

    StudySettings() {
        IncN.fill(1);
        IncCost.fill(1);
    }
};

/// How results are displayed. Undo leaves it alone.
struct DisplaySettings {
    DisplayModes Powermode = DisplayModes::graph;
    DisplayModes Costmode = DisplayModes::digits;
    SchematicModes ShowCellCounts = SchematicModes::automatic;
    SchematicModes ShowIccSchematic = SchematicModes::automatic;    ///< no study file keeps it
    SchematicModes ShowTauSqSchematic = SchematicModes::automatic;  ///< no study file keeps it
    bool ShowOmega = true;  ///< omega has a column on the panel of the effects; no study file keeps it
};

struct SessionState {
    Study study;
    StudySettings settings;
    DisplaySettings display;
    ScenarioGrid scenarios;
};

}  // namespace lorvane
