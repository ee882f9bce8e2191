// Settings of the session beside the study's own fields. A study file holds most of them; the values here are
// those of a new study.
#pragma once

#include <string>

#include "engine/per_level.h"
#include "screen/currency.h"

namespace lorvane {

namespace SchematicModes {
inline constexpr int off = 1;
inline constexpr int automatic = 2;
inline constexpr int on = 3;
}  // namespace SchematicModes

struct SessionSettings {
    std::string CurrentFile;  ///< path of the open file; empty for a new study
    bool StudyDirty = false;  ///< set by every refresh, cleared by a save, a clear and the start
    int IterationsForOptimal = 30;
    bool AllowLowCellCounts = false;
    int CellCountDetail = 3;  ///< 1 none, 2 moderate, 3 full
    int ShowCellCounts = SchematicModes::automatic;
    int ShowIccSchematic = SchematicModes::automatic;    ///< not part of a study file
    int ShowTauSqSchematic = SchematicModes::automatic;  ///< not part of a study file
    bool ShowOmega = true;  ///< omega has a column on the panel of the effects; not part of a study file
    int ReportFont = 3;
    int ReportPaper = 1;  ///< 1 US letter, 2 A4
    int ReportSpans = 1;  ///< 1 in the report, 2 left out
    int ReportCosts = 1;
    int ScenarioNumber = 0;  ///< scenario names handed out so far
    Currency currency;

    // Units of the last decimal that one step of an arrow moves a field.
    PerLevel<int> IncN;
    PerLevel<int> IncCost;
    int IncMRange = 1;
    int IncMean = 1;
    int IncSD = 1;

    SessionSettings() {
        IncN.fill(1);
        IncCost.fill(1);
    }
};

}  // namespace lorvane
